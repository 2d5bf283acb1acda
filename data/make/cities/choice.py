"""Chooses which places the city list holds.

The default clocks point at fixed ranks, so four cities must stand at given positions of the sorted list.  These
anchors cut the alphabet into intervals of known size; each interval is filled on its own, the most wanted first.
"""

import collections
from typing import NamedTuple

LARGE = 1_500_000  # places above this are in wherever there is room
ZONE_CITY = 50_000  # smallest city that may stand for its zone
SMALLEST = 15_000  # smallest city that fame alone may bring in


class Choice(NamedTuple):
    """The chosen places in list order, why each is there (by key), and what each interval had no room for."""

    places: list
    reasons: dict
    crowded_out: list


def by_population(places):
    return sorted(places, key=lambda p: (-p.population, p.key))


def fame(place):
    """Population, weighted by the number of names that the world has for a place: travellers know those."""
    return place.population * (place.other_names / 10) ** 1.5


def required_places(places, anchors, zones, signature):
    """Key -> reason of the places that must be in: anchors, capitals, and one place for every set of clocks."""
    by_key = {place.key: place for place in places}
    missing = [key for key in anchors if key not in by_key]
    if missing:
        raise ValueError(f"no such place for a fixed rank: {missing}")
    reasons = {key: "anchor" for key in anchors}
    for place in places:
        if place.is_capital:
            reasons.setdefault(place.key, "capital")
    covered = {signature(by_key[key].zone) for key in reasons}
    for place in by_population(places):
        clocks = signature(place.zone)
        if clocks not in covered and any(signature(zone) == clocks for zone in zones):
            covered.add(clocks)
            reasons[place.key] = "clocks"
    return reasons


def zone_cities(places, zones, seen_zones, station):
    """The largest city of every zone that has none yet."""
    cities = {}
    for place in by_population(places):
        if place.population >= ZONE_CITY or place.kind == station:
            cities.setdefault(place.zone, place)
    return by_population(cities[zone] for zone in zones if zone in cities and zone not in seen_zones)


def interval_bounds(fixed_ranks, total):
    """[(lower key or None, upper key or None, size)] of the gaps between the fixed ranks."""
    bounds, lower, first = [], None, 0
    for rank, key in fixed_ranks:
        bounds.append((lower, key, rank - first))
        lower, first = key, rank + 1
    return bounds + [(lower, None, total - first)]


def fill_interval(bound, required, wanted):
    """Returns {key: reason} of one interval, and the large or wished-for places that found no room."""
    lower, upper, size = bound

    def inside(key):
        return (lower is None or key > lower) and (upper is None or key < upper)

    taken = {key: reason for key, reason in required.items() if inside(key)}
    if len(taken) > size:
        raise ValueError(f"{len(taken)} places must stand between {lower} and {upper}, where only {size} fit")
    crowded_out = []
    for reason, place in wanted:
        if not inside(place.key) or place.key in taken:
            continue
        if len(taken) < size:
            taken[place.key] = reason
        elif reason in ("large", "wish"):
            crowded_out.append(place)
    if len(taken) < size:
        raise ValueError(f"only {len(taken)} of {size} places between {lower} and {upper}")
    return taken, crowded_out


def choose(places, fixed_ranks, wishes, zones, signature, total, station):
    """Chooses TOTAL of PLACES (keys unique); SIGNATURE maps a zone to a value equal for zones with equal clocks."""
    by_key = {place.key: place for place in places}
    required = required_places(places, [key for _, key in fixed_ranks], zones, signature)
    large = [place for place in by_population(places) if place.population >= LARGE]
    wished = by_population(p for p in places if (p.country_code, p.source_name) in wishes)
    seen_zones = {by_key[key].zone for key in required} | {place.zone for place in large + wished}
    famous = sorted((p for p in places if p.population >= SMALLEST), key=lambda p: (-fame(p), p.key))
    wanted = [("wish", p) for p in wished] + [("large", p) for p in large]
    wanted += [("zone", p) for p in zone_cities(places, zones, seen_zones, station)]
    wanted += [("fame", p) for p in famous]
    reasons, crowded_out = {}, []
    for bound in interval_bounds(fixed_ranks, total):
        taken, left = fill_interval(bound, required, wanted)
        reasons.update(taken)
        crowded_out += left
    reasons.update((key, required[key]) for _, key in fixed_ranks)
    return Choice([by_key[key] for key in sorted(reasons)], reasons, crowded_out)


def count_reasons(choice):
    return dict(collections.Counter(choice.reasons.values()).most_common())

#!/usr/bin/env python3
"""Makes cities.lst, cities.date and cities.wet from a gazetteer and a tz database; README.md beside this file says how."""

import argparse
import collections
import datetime
import pathlib
import sys
import zoneinfo

import choice
import city_files
import gazetteer
import time_rules
from tables import read_table

# The day whose clocks the shipped list describes; daylight-saving days are those of its year.
RULES_DAY = datetime.date(2026, 11, 22)
TOTAL = 1200


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--gazetteer", type=pathlib.Path, required=True, help="cities500.txt")
    parser.add_argument("--tz", type=pathlib.Path, required=True, help="zoneinfo folder with its *.tab files")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="folder for the three files")
    parser.add_argument("--day", type=datetime.date.fromisoformat, default=RULES_DAY, help="default %(default)s")
    parser.add_argument("--total", type=int, default=TOTAL, help="number of cities, default %(default)s")
    parser.add_argument("--explain", action="store_true", help="also print why each city is in")
    return parser.parse_args()


def gather_places(options):
    """Returns (places with unique keys, those that lost their key to a larger one, wished-for pairs)."""
    countries = gazetteer.read_countries(options.tz)
    reader = gazetteer.GazetteerReader(countries)
    places = reader.read(options.gazetteer) + gazetteer.read_zone_places(options.tz, countries)
    return *gazetteer.unique_places(places), reader.wishes


def report_choice(chosen, lost, fixed_ranks):
    places = chosen.places
    print(f"{len(places)} cities, {len({p.country for p in places})} countries, {len({p.zone for p in places})} zones")
    print("why they are in:", choice.count_reasons(chosen))
    print("no room for:", ", ".join(f"{p.key} {p.population}" for p in chosen.crowded_out) or "none")
    large = [p for p in lost if p.population >= choice.LARGE]
    print("large, but the name is taken:", ", ".join(f"{p.key} {p.population}" for p in large) or "none")
    for rank, key in fixed_ranks:
        if places[rank].key != key:
            raise ValueError(f"rank {rank} is {places[rank].key}, not {key}")
        print(f"rank {rank}: {key}")


def report_rules(places, rules):
    """Names the zones that no rule of a city line describes for the whole year."""
    names = collections.defaultdict(list)
    for place in places:
        names[place.zone].append(place.name)
    for zone, (_, wrong, settled) in sorted(rules.items()):
        if settled:
            print(f"settled since its last change: {zone} ({', '.join(names[zone])})")
        elif wrong:
            print(f"no exact rule: {zone}, {wrong} minutes of the year wrong ({', '.join(names[zone])})")


def main():
    options = parse_arguments()
    options.tz = options.tz.resolve()
    zoneinfo.reset_tzpath([options.tz])
    places, lost, wishes = gather_places(options)
    fixed_ranks = [(int(rank), f"{name}:{country}") for rank, name, country in read_table("fixed_ranks.tsv", 3)]
    chosen = choice.choose(
        places, fixed_ranks, wishes, gazetteer.read_zones(options.tz),
        lambda zone: time_rules.changes_of_year(zone, options.day.year), options.total, gazetteer.STATION)
    rules = {zone: time_rules.rule_for(zone, options.day) for zone in {place.zone for place in chosen.places}}
    city_files.check_feed_names(chosen.places)
    lines = [city_files.city_line(place, rules[place.zone][0]) for place in chosen.places]
    city_files.write_counted_lines(options.out / "cities.lst", lines)
    (options.out / "cities.date").write_text(f"{options.day.isoformat()}\n", encoding="ascii")
    weather_lines = [city_files.weather_line(place) for place in chosen.places]
    city_files.write_counted_lines(options.out / "cities.wet", weather_lines)
    report_choice(chosen, lost, fixed_ranks)
    report_rules(chosen.places, rules)
    if options.explain:
        for place in chosen.places:
            print(f"{chosen.reasons[place.key]:8}{place.population:>10}  {place.key}")


if __name__ == "__main__":
    try:
        main()
    except (OSError, ValueError) as error:
        sys.exit(f"make_cities.py: {error}")

"""The places to choose from: the gazetteer's rows and the tz database's own tables."""

import dataclasses
import re

from latin_text import fits_a_field, to_latin1
from tables import read_table

# Quarters, historical, abandoned, religious and farm places, and other kinds that are no city of their own.
NO_CITY = {"PPLX", "PPLQ", "PPLH", "PPLW", "PPLCH", "PPLL", "PPLF", "PPLS", "PPLR", "STLMT"}
STATION = "TZ"


@dataclasses.dataclass(frozen=True)
class Place:
    """A place in the words of the city list, with what the choice needs to know of it."""

    name: str
    country: str
    country_code: str
    source_name: str
    longitude: float
    latitude: float
    zone: str
    population: int = 0
    other_names: int = 1
    is_capital: bool = False
    kind: str = STATION

    @property
    def key(self):
        """What the city database sorts by."""
        return f"{self.name}:{self.country}"


def read_countries(tz_folder):
    """Country code -> English name: the tz database's short names, some replaced by the ones in ordinary use."""
    countries = {}
    for line in (tz_folder / "iso3166.tab").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            code, name = line.split("\t")
            countries[code] = name
    countries.update(read_table("country_names.tsv", 2))
    return {code: to_latin1(name) for code, name in countries.items()}


def read_zones(tz_folder):
    """The zones that differ since 1970, in the order of the tz database."""
    lines = (tz_folder / "zone1970.tab").read_text(encoding="utf-8").splitlines()
    return [line.split("\t")[2] for line in lines if line and not line.startswith("#")]


class GazetteerReader:
    """Reads the gazetteer (19 tab-separated columns a line) with the hand-kept tables applied."""

    def __init__(self, countries):
        self.countries = countries
        self.renames = {(code, name): shown for code, name, shown in read_table("renames.tsv", 3)}
        self.suppressed = set(read_table("suppress.tsv", 2))
        self.capitals = set(read_table("capitals.tsv", 2))
        self.zone_links = dict(read_table("zone_links.tsv", 2))
        self.zone_splits = {(code, name): zone for code, name, zone in read_table("zone_splits.tsv", 3)}
        self.wishes = set(read_table("wishes.tsv", 2))

    def read(self, path):
        """Returns the places of the file that can stand in a city list."""
        with open(path, encoding="utf-8") as file:
            rows = [line.rstrip("\n").split("\t") for line in file]
        self.check_tables({(row[8], row[1]) for row in rows})
        return [place for place in map(self.place, rows) if place]

    def check_tables(self, known):
        """A table row that names nothing in the gazetteer is a slip, or stale after an update: say so."""
        named = {*self.renames, *self.suppressed, *self.capitals, *self.zone_splits, *self.wishes}
        if named - known:
            raise ValueError(f"the tables name what the gazetteer does not have: {sorted(named - known)}")

    def place(self, row):
        """Returns the place of one row, or None where it is no city or its name cannot be written."""
        source, code, kind, population = row[1], row[8], row[7], int(row[14] or 0)
        is_capital = kind == "PPLC" or (code, source) in self.capitals
        if kind in NO_CITY or (code, source) in self.suppressed or code not in self.countries:
            return None
        if not is_capital and population < 1:
            return None
        name = to_latin1(self.shown_name(code, source), row[2])
        if not fits_a_field(name):
            return None
        return Place(
            name=name, country=self.countries[code], country_code=code, source_name=source,
            longitude=float(row[5]), latitude=float(row[4]), zone=self.zone(code, source, row[17]),
            population=population, other_names=row[3].count(",") + 1, is_capital=is_capital, kind=kind)

    def shown_name(self, code, source):
        if (code, source) in self.renames:
            return self.renames[code, source]
        return source.removesuffix("-si") if code == "KR" else source

    def zone(self, code, source, zone):
        return self.zone_splits.get((code, source)) or self.zone_links.get(zone, zone)


def degrees(sign, whole, minutes, seconds):
    value = int(whole) + int(minutes) / 60 + int(seconds or 0) / 3600
    return -value if sign == "-" else value


def read_zone_places(tz_folder, countries):
    """Places that stand for the zones in which the gazetteer has no city, at the coordinates of zone.tab."""
    wanted = {zone: (code, name) for zone, code, name in read_table("zone_places.tsv", 3)}
    places = []
    for line in (tz_folder / "zone.tab").read_text(encoding="utf-8").splitlines():
        if line.startswith("#") or line.split("\t")[2] not in wanted:
            continue
        coordinates, zone = line.split("\t")[1:3]
        parts = re.fullmatch(r"([+-])(\d\d)(\d\d)(\d\d)?([+-])(\d{3})(\d\d)(\d\d)?", coordinates).groups()
        code, name = wanted[zone]
        places.append(Place(
            name=name, country=countries[code], country_code=code, source_name=name,
            longitude=degrees(*parts[4:]), latitude=degrees(*parts[:4]), zone=zone))
    return places


def unique_places(places):
    """Returns (places with a key of their own, those that lost it): a capital wins, else the larger place."""
    ordered = sorted(places, key=lambda p: (not p.is_capital, -p.population, p.key, p.longitude))
    kept, lost = {}, []
    for place in ordered:
        if place.key in kept:
            lost.append(place)
        else:
            kept[place.key] = place
    return list(kept.values()), lost

#!/usr/bin/env python3
"""Reads the shipped data files as the program does and checks what a traveller would notice if it were wrong."""

import collections
import datetime
import pathlib
import re
import unittest

DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
City = collections.namedtuple("City", "zone name country longitude latitude offset")


def counted_lines(name):
    """The lines of a file that begins with their number."""
    count, *lines = (DATA / name).read_bytes().decode("latin-1").split("\n")
    assert lines.pop() == "" and int(count) == len(lines), f"{name} promises {count} lines and has {len(lines)}"
    return lines


def minutes_of(offset):
    minutes = abs(offset) * 60 if abs(offset) <= 100 else abs(offset) // 100 * 60 + abs(offset) % 100
    return -minutes if offset < 0 else minutes


def read_cities():
    cities = []
    for line in counted_lines("cities.lst"):
        fields = line.split(";")
        assert len(fields) == 11 and all(fields), f"eleven filled fields expected: {line}"
        cities.append(City(*fields[:3], float(fields[3]), float(fields[4]), int(fields[5])))
    return cities


class CityList(unittest.TestCase):
    cities = read_cities()
    keys = [f"{city.name}:{city.country}" for city in cities]

    def test_order_gives_the_default_clocks_their_cities(self):
        self.assertEqual(self.keys, sorted(self.keys))
        self.assertEqual(len(self.keys), len(set(self.keys)))
        ranks = {565: "London:United Kingdom", 684: "New York:United States", 756: "Paris:France", 988: "Tokyo:Japan"}
        self.assertEqual({rank: self.keys[rank] for rank in ranks}, ranks)

    def test_names_can_be_shown_and_found(self):
        for city in self.cities:
            for text in (city.name, city.country):
                self.assertRegex(text, r"\A[A-Z\xc0-\xde][ -9<-~\xa1-\xff]*(?<! )\Z", city)
        wanted = {"Geneva", "Venice", "Auckland", "Dubai", "Bangkok", "Reykjavík", "Honolulu", "Cusco", "Marrakesh"}
        self.assertLessEqual(wanted, {city.name for city in self.cities})

    def test_clocks_go_with_the_places(self):
        for city in self.cities:
            # The sun and the clock agree roughly everywhere; a swapped sign or coordinate does not.
            self.assertLess(abs((minutes_of(city.offset) / 4 - city.longitude + 180) % 360 - 180), 60, city)

    def test_weather_places_are_the_same_cities(self):
        places = [line.split(";") for line in counted_lines("cities.wet")]
        self.assertEqual([":".join(place[:2]) for place in places], self.keys)
        for name, country, feed in places:
            self.assertRegex(feed, r"\A[a-z0-9-]+_[a-z0-9-]+\Z", (name, country))
        self.assertEqual(len({feed for _, _, feed in places}), len(places))
        self.assertIn(["London", "United Kingdom", "london_united-kingdom"], places)


class OtherFiles(unittest.TestCase):
    def test_currencies(self):
        count, text = (DATA / "currs.lst").read_bytes().decode("latin-1").split("\n", 1)
        entries = re.findall(r"([A-Z]{3})_([^_#\n]+)_([0-9]+(?:\.[0-9]+)?)#", text)
        self.assertEqual("".join(f"{code}_{name}_{rate}#" for code, name, rate in entries), text)
        self.assertEqual(int(count), len(entries))
        self.assertGreaterEqual(len(entries), 189)
        for column in (0, 1):
            self.assertEqual(len({entry[column] for entry in entries}), len(entries))
        rates = {code: float(rate) for code, _, rate in entries}
        self.assertTrue(0 < min(rates.values()) and rates["USD"] == 1)
        self.assertTrue(0.5 < rates["GBP"] < rates["EUR"] < 1.2 and 80 < rates["JPY"] < 250)
        day = datetime.date.fromisoformat((DATA / "currs.date").read_text(encoding="ascii").removesuffix("\n"))
        self.assertGreaterEqual(day, datetime.date(2026, 9, 29))

    def test_one_line_files(self):
        self.assertEqual((DATA / "adrs.cfg").read_bytes(), b"http://127.0.0.1:8765/feed*")
        names = ["French", "German", "Spanish", "Italian", "Portuguese", "Japanese"]
        modules = "".join(f"{i},{name},Roamly{name}.dll@" for i, name in enumerate(names, 1))
        self.assertEqual((DATA / "langs.dat").read_text("ascii"), f"0,English,none@{modules}>")


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Checks the parts of the data generators whose faults would not show in this year's files."""

import pathlib
import sys
import unittest
from decimal import Decimal

MAKE = pathlib.Path(__file__).resolve().parents[2] / "data" / "make"
sys.dont_write_bytecode = True
sys.path[:0] = [str(MAKE / "cities"), str(MAKE / "currencies")]

import choice
import gazetteer
import latin_text
import make_currs
from time_rules import Rule, encode_offset, fit_rule

DAY = 1440
YEAR = 365 * DAY
BEFORE = -2 * DAY


def place(name, population, names=10):
    return gazetteer.Place(name, "X", "XX", name, 0, 0, "Z", population, names)


class TimeRules(unittest.TestCase):
    def test_rule_is_found_from_the_changes(self):
        # Changes are (minute of the UTC year, new offset); the fields count days from 1.
        cases = {
            "none": (((BEFORE, 330),), (530, 0, 0, 0, 0, 0)),
            "north": (((BEFORE, -300), (66 * DAY + 420, -240), (304 * DAY + 360, -300)), (-5, 1, 67, 2, 305, 2)),
            "south": (((BEFORE, 660), (94 * DAY - 480, 600), (276 * DAY - 480, 660)), (10, 1, 277, 2, 95, 3)),
            "never back": (((BEFORE, -300), (66 * DAY + 300, -240)), (-5, 1, 67, 0, 1, 0)),
            "two hours": (((BEFORE, 0), (87 * DAY + 60, 120), (297 * DAY + 60, 0)), (0, 2, 88, 1, 298, 3)),
        }
        for name, (changes, fields) in cases.items():
            rule, wrong = fit_rule(changes, YEAR)
            self.assertEqual((name, rule.fields(), wrong), (name, fields, 0))

    def test_half_hour_daylight_saving_is_told_as_wrong(self):
        rule, wrong = fit_rule(((BEFORE, 630), (94 * DAY, 660)), YEAR)
        self.assertEqual((rule, wrong), (Rule(660), 94 * DAY + 630))

    def test_offsets_are_written_as_hours_or_hours_and_minutes(self):
        cases = {0: 0, -300: -5, 330: 530, -210: -330, 765: 1245, 60: 1, 90: 130}
        self.assertEqual({minutes: encode_offset(minutes) for minutes in cases}, cases)
        with self.assertRaisesRegex(ValueError, "-30 minutes"):
            encode_offset(-30)


class Cities(unittest.TestCase):
    def test_fixed_ranks_hold_and_the_wanted_come_first(self):
        sizes = (("A", 5), ("B", 9), ("C", 90_000), ("M", 1), ("Z", 20_000))
        places = [place(*size) for size in sizes] + [place("D", 90_000, names=40)]
        fixed = [(2, "M:X")]
        chosen = choice.choose(places, fixed, {("XX", "B")}, ["Z"], lambda zone: zone, 4, "TZ")
        self.assertEqual([p.name for p in chosen.places], ["B", "D", "M", "Z"])
        with self.assertRaisesRegex(ValueError, "only 1 of 2 places between M:X and None"):
            choice.choose(places, fixed, set(), ["Z"], lambda zone: zone, 5, "TZ")
        with self.assertRaisesRegex(ValueError, "no such place.*N:X"):
            choice.choose(places, [(2, "N:X")], set(), ["Z"], lambda zone: zone, 4, "TZ")

    def test_of_two_places_with_one_name_the_larger_stays(self):
        kept, lost = gazetteer.unique_places([place("A", 5), place("A", 7), place("B", 1)])
        self.assertEqual([p.population for p in kept + lost], [7, 1, 5])

    def test_names_fit_the_file_and_the_feed(self):
        latin = {"Łódź": "Lódz", "Nuku‘alofa": "Nuku'alofa", "Ðà Lạt": "Ðà Lat", "東京": ""}
        self.assertEqual({name: latin_text.to_latin1(name) for name in latin}, latin)
        self.assertEqual(latin_text.to_latin1("東京", "Tokyo"), "Tokyo")
        keys = {"São Tomé": "sao-tome", "St. John's": "st-johns", "Tromsø": "tromso", "A & B": "a-b"}
        self.assertEqual({name: latin_text.to_key(name) for name in keys}, keys)


class Currencies(unittest.TestCase):
    def test_rates_have_eight_digits_and_no_exponent(self):
        cases = {"1.2017405E-5": "0.000012017405", "89715.62449": "89715.624", "1E+3": "1000", "3.6725000": "3.6725"}
        self.assertEqual({text: make_currs.rate_text(Decimal(text)) for text in cases}, cases)

    def test_entries_that_would_break_the_list_are_refused(self):
        for names, rate in (({"ABC": "A_B"}, 1), ({"ABC": "A#"}, 1), ({"ABC": ""}, 1), ({"ABC": "A"}, 0), ({}, 1)):
            with self.assertRaisesRegex(ValueError, "ABC", msg=names):
                make_currs.entry("ABC", {"ABC": Decimal(rate)}, names)


if __name__ == "__main__":
    unittest.main()

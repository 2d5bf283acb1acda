#!/usr/bin/env python3
"""What `rlx city refresh` does to the list, the database and the choices, seen from outside."""

import unittest

from rlx_program import RlxTest

WORLD_CLOCK = "Roamlytix\\wrldclk"
PARIS = "Europe/Paris;Paris;France;2.35;48.85;{}\n"
TOKYO = "Asia/Tokyo;Tokyo;Japan;139.7;35.7;9;0;0;0;0;0\n"
SOMEWHERE = "-;Xanadu;Nowhere;0;0;5;1;1;1;1;1\n"


class Refresh(RlxTest):
    def list(self, rule):
        return "9\n" + PARIS.format(rule) + TOKYO + SOMEWHERE

    def read(self, name):
        return (self.home / name).read_text("latin-1")

    def test_rules_are_those_of_the_year_and_choices_stay(self):
        self.cities(self.list("1;1;88;2;298;3"))
        self.answer("settings", "set", WORLD_CLOCK, "clock", "--dword", "1")
        years = [("2025", "1;1;89;2;299;3", 1), ("2025", "1;1;89;2;299;3", 0), ("2028", "1;1;86;2;303;3", 1)]
        for year, rule, count in years:
            self.assertEqual(self.answer("city", "refresh", "--year", year), {"count": count, "year": int(year)})
            self.assertEqual(self.read("cities.lst"), "3\n" + PARIS.format(rule) + TOKYO + SOMEWHERE)
            self.assertEqual(self.read("cities.date"), f"{year}-01-01\n")
            stored = self.answer("city", "show", "Paris")["dstRule"]
            self.assertEqual(stored, rule.partition(";")[2].replace(";", ":"))
        self.assertEqual(self.answer("city", "refresh"), {"count": 1, "year": 2026})
        self.assertEqual(self.read("cities.date"), "2026-07-10\n")
        self.assertEqual(self.answer("clocks")["clocks"][0]["name"], "Tokyo")

    def test_failures_leave_all_as_it_was(self):
        self.cities(self.list("1;1;88;2;298;3"))
        before = self.read("cities.lst")
        (self.folder / "zones").mkdir()
        self.environment = {"TZDIR": str(self.folder / "zones")}
        self.answer("city", "refresh", status=1,
                    messages=["The system has no time-zone data. The rules stay as they are."])
        self.assertEqual(self.read("cities.lst"), before)
        self.assertEqual(self.run_rlx("city", "refresh", "--year=2200").returncode, 2)

    def test_unfinished_change_is_ended_at_the_next_start(self):
        self.cities("2\n" + PARIS.format("1;0;0;0;0;0") + TOKYO)
        self.answer("settings", "set", WORLD_CLOCK, "clock", "--dword", "1")
        self.answer("settings", "set", WORLD_CLOCK, "clock1", "--dword", "0")
        self.answer("city", "list")
        # As a run leaves it that dies between the list and the database: Paris renamed, a city put in front.
        self.answer("settings", "set", WORLD_CLOCK, "citymoves", "--text", "Paris:France;Lutetia:Gaul;")
        lutetia = "Europe/Paris;Lutetia;Gaul;2.35;48.85;1;0;0;0;0;0\n"
        (self.home / "cities.lst").write_text("3\n" + lutetia + "-;A;A;0;0;0;0;0;0;0;0\n" + TOKYO)
        self.assertEqual([c["name"] for c in self.answer("clocks")["clocks"][:2]], ["Tokyo", "Lutetia"])
        self.assertNotIn("citymoves", [v["name"] for v in self.answer("settings", "list")["values"]])


if __name__ == "__main__":
    unittest.main()

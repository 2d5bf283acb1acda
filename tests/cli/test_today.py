#!/usr/bin/env python3
"""`rlx today`: the summary and its two options."""

import unittest

from rlx_program import RlxTest

CITIES = ("5\nz;Amsterdam;Netherlands;4.9;52.4;1;1;88;2;298;3\nz;London;United Kingdom;-0.1;51.5;0;1;88;1;298;2\n"
          "z;New York;United States;-74;40.7;-5;1;67;2;305;2\nz;Sydney;Australia;151.2;-33.9;10;1;277;2;95;3\n"
          "z;Tokyo;Japan;139.7;35.7;9;0;0;0;0;0\n")
CURRENCIES = "3\nEUR_Euro_0.5#USD_US Dollar_1#XXX_Nowhere_n/a#"
NOW = "2026-11-22T21:10:05"


class Today(RlxTest):
    def setUp(self):
        super().setUp()
        self.cities(CITIES)
        (self.home / "currs.lst").write_text(CURRENCIES)
        (self.home / "currs.date").write_text("2026-11-20\n")
        for slot, index in (("clock", 0), ("clock1", 2), ("clock2", 3)):
            self.answer("settings", "set", "Roamlytix\\wrldclk", slot, "--dword", str(index))

    def test_summary(self):
        self.answer("settings", "set", "Roamlytix\\currencies", "curp2", "--dword", str(1 | 2 << 16))
        answer = self.answer("today", now=NOW)
        self.assertEqual([(c["name"], c["time"]) for c in answer["cities"]],
                         [("Amsterdam", "21:10:05"), ("New York", "15:10:05"), ("Sydney", "07:10:05")])
        self.assertEqual(len(answer["rates"]), 3)
        self.assertFalse(answer["stale"])
        line = self.run_rlx("today", now=NOW).stdout.decode()
        self.assertEqual(line.count("\n"), 1)
        self.assertIn("New York 15:10:05 | Sydney 07:10:05 (23/11 Mon) | 1 ", line)
        self.assertIn("= ?", line)
        self.answer("today", "options", "--cities", "1", "--rates", "off")
        answer = self.answer("today", now=NOW)
        self.assertEqual((len(answer["cities"]), answer["rates"]), (1, []))

    def test_options(self):
        for words, stored in (((), (3, 1)), (("--cities", "5"), (5, 1)), (("--rates", "off"), (5, 0)),
                              (("--rates", "on", "--cities", "2"), (2, 1))):
            answer = self.answer("today", "options", *words)
            self.assertEqual((answer["cities"], answer["rates"]), stored)
            kept = [self.answer("settings", "get", "Roamlytix", name)["value"] for name in ("todaynbcs", "todayscur")]
            self.assertEqual(tuple(kept), stored)
        self.answer("settings", "set", "Roamlytix", "todaynbcs", "--dword", "0")
        self.assertEqual(self.answer("today", "options")["cities"], 1)
        for words in (("--cities", "6"), ("--rates", "perhaps")):
            self.assertEqual(self.run_rlx("today", "options", *words).returncode, 2, words)


if __name__ == "__main__":
    unittest.main()

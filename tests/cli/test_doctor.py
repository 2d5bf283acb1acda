#!/usr/bin/env python3
"""The self-check of `rlx` on the shipped data, and on a device with faults."""

import pathlib
import shutil
import unittest

from rlx_program import PROJECT, RLX, RlxTest

NOW = "2026-11-22T12:00:00"


class Doctor(RlxTest):
    def setUp(self):
        super().setUp()
        shutil.rmtree(self.home)
        shutil.copytree(PROJECT / "data", self.home, ignore=shutil.ignore_patterns("make", "icons"))
        shutil.copytree(pathlib.Path(RLX).parent / "LangsRes", self.home / "LangsRes")

    def test_shipped_data_is_sound(self):
        self.assertEqual(self.answer("doctor", now=NOW), {"faults": [], "verdict": "sound"})
        self.assertEqual(self.run_rlx("doctor", now=NOW).stdout, b"No faults found.\n")

    def test_faults_are_named_and_the_status_says_so(self):
        self.answer("settings", "set", "Roamlytix", "skin", "--text", str(self.home / "skins/Gone/gone.skn"))
        (self.home / "skins/Night/night.skn").write_text("[Clocks]")
        (self.home / "map.jpg").write_bytes(b"no picture")
        answer = self.answer("doctor", status=1, now="2027-02-01T12:00:00")
        self.assertEqual(answer["verdict"], "faulty")
        self.assertTrue(all(list(fault) == ["file", "line", "text"] for fault in answer["faults"]))
        found = {(fault["file"], fault["line"]) for fault in answer["faults"]}
        wanted = {("cities.date", 1), ("map.jpg", 0), ("skins/Night/night.skn", 0),
                  ("skins/Gone/gone.skn", 0)}
        self.assertLessEqual(wanted, found)
        last = self.run_rlx("doctor", now="2027-02-01T12:00:00").stdout.decode().splitlines()[-1]
        self.assertEqual(last, f"Faults found: {len(answer['faults'])}")


if __name__ == "__main__":
    unittest.main()

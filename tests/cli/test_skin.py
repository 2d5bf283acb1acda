#!/usr/bin/env python3
"""`rlx skin` from outside: lookups in broken files, validity of changed skins, the choice and what it stores."""

import os
import pathlib
import shutil
import unittest

from rlx_program import PROJECT, RlxTest

DATA = PROJECT / "data"
INVALID = "Skin description file corrupted or some skin files are missing!"
NONE = "No skins available in this Directory"


class Show(RlxTest):
    def test_lookups(self):
        file, section = self.folder / "a.skn", "[A]\r\nN@Nächte\r\n"
        file.write_bytes(b"[A]\r\nN@N\xe4chte\r\n>*")
        for words, members in (("A N", (section, "Nächte")), ("B N", ("!.!", "!.!")), ("A", (section, None))):
            self.assertEqual(self.answer("skin", "show", file, *words.split()), dict(zip(("section", "value"), members)))
        self.assertEqual(self.run_rlx("skin", "show", file, "A", "N").stdout.decode(), "Nächte\n")
        self.answer("skin", "show", "none.skn", "Map", status=1, messages=['"none.skn" could not be read.'])


class Skins(RlxTest):
    def setUp(self):
        super().setUp()
        for name in ("Portrait", "Landscape", "Square"):
            os.symlink(DATA / name, self.home / name)
        shutil.copy(DATA / "map.jpg", self.home)
        self.text = (DATA / "default.skn").read_bytes()
        self.file = self.home / "default.skn"
        self.file.write_bytes(self.text)
        self.night = DATA / "skins/Night/night.skn"

    def stored(self):
        return self.answer("settings", "get", "Roamlytix", "skin")["value"]

    def test_checks(self):
        self.assertEqual(self.answer("skin", "check", self.file), {"valid": True, "faults": []})
        self.assertEqual(self.answer("skin", "check", self.home / "none.skn"),
                         {"valid": False, "faults": ["The skin file cannot be opened."]})

    def test_list_names_the_invalid_with_their_reasons(self):
        (self.home / "Broken.SKN").write_bytes(self.text.replace(b"PTC@", b"XTC@", 1).replace(b"Default", b"Odd"))
        listed = self.answer("skin", "list", self.home)["skins"]
        self.assertEqual([(s["name"], pathlib.Path(s["file"]).name, s["valid"]) for s in listed],
                         [("Odd", "Broken.SKN", False), ("Default", "default.skn", True)])
        self.assertEqual((listed[0]["faults"], listed[1]["faults"]), (["[General] has no line PTC@."], []))
        self.assertIn("Odd (invalid)\n", self.run_rlx("skin", "list", self.home).stdout.decode())

    def test_list_of_a_folder_without_skins(self):
        empty = [{"name": NONE, "file": None, "valid": False, "faults": []}]
        self.assertEqual(self.answer("skin", "list", self.home / "Square"), {"skins": empty})
        self.answer("skin", "list", self.home / "none", status=1, messages=[f'There is no folder "{self.home}/none".'])

    def test_use_stores_a_valid_skin_and_nothing_else(self):
        relative = os.path.relpath(self.night)
        self.assertEqual(self.answer("skin", "use", relative), {})
        self.assertEqual(self.stored(), str(pathlib.Path(os.getcwd(), relative).resolve()))
        self.answer("skin", "use", self.home / "none.skn", status=1, messages=[INVALID])
        self.assertEqual(self.stored(), str(self.night.resolve()))
        for word in ("default", self.file, self.home / "Square/../default.skn"):
            self.answer("skin", "use", self.night)
            self.answer("skin", "use", word)
            self.assertEqual(self.stored(), "default", word)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""`rlx lang` from outside: the list, installing, choosing, and what a chosen language does to other answers."""

import pathlib
import shutil
import unittest

from rlx_program import RLX, RlxTest

MODULE = pathlib.Path(RLX).resolve().parents[1] / "test_modules" / "RoamlyPseudo.dll"
ENGLISH = {"index": 0, "name": "English", "module": "none"}
PSEUDO = {"index": 1, "name": "Pseudo", "module": "RoamlyPseudo.dll"}
RESTART = "Please restart Application for new language validation"
NOT_LOADED = "Error. Could not load Language Module\n\nPlease select another language and restart Application"


class Lang(RlxTest):
    def setUp(self):
        super().setUp()
        self.list = self.home / "langs.dat"
        self.list.write_bytes(b"0,English,none@>")
        self.card = self.folder / "card"
        self.card.mkdir()
        shutil.copy(MODULE, self.card)

    def install(self, *words, messages=("Pseudo is installed.",)):
        return self.answer("lang", "install", self.card, "RoamlyPseudo.dll", *words, messages=messages)

    def use(self, index):
        self.answer("lang", "use", str(index), messages=[RESTART])

    def test_install_use_and_back(self):
        self.assertEqual(self.answer("lang", "list"), {"languages": [ENGLISH]})
        self.assertEqual(self.install(), {"languages": [ENGLISH, PSEUDO]})
        self.assertEqual(self.list.read_bytes(), b"0,English,none@1,Pseudo,RoamlyPseudo.dll@>")
        self.assertEqual((self.home / "LangsRes/RoamlyPseudo.dll").read_bytes(), MODULE.read_bytes())
        self.use(1)
        self.assertEqual(self.answer("settings", "get", "Roamlytix", "lang"), {"status": 0, "type": "dword", "value": 1})
        self.assertEqual(self.answer("lang", "text", "32923"), {"text": "[Error!~~~]"})
        self.assertEqual(self.answer("sizes", "[shoes", "men")["title"], "[Men's shoes ~~~~~~]")
        self.answer("lang", "use", "0", messages=["[" + RESTART + " ~~~~~~" * 3 + " ~~~~~~]"])
        self.assertEqual(self.answer("lang", "text", "32923"), {"text": "Error!"})

    def test_refusals_change_nothing(self):
        (self.card / "RoamlyText.dll").write_text("no library")
        self.answer("lang", "install", self.card, "RoamlyText.dll", "--move", status=1,
                    messages=['"RoamlyText.dll" is not a language module.'])
        self.assertEqual(self.list.read_bytes(), b"0,English,none@>")
        self.assertFalse((self.home / "LangsRes").exists())
        self.answer("lang", "use", "1", status=1, messages=["There is no language 1 in the list."])
        self.assertEqual(self.answer("settings", "get", "Roamlytix", "lang")["status"], -2)

    def test_module_that_is_gone_leaves_english(self):
        self.install("--move")
        self.assertEqual(list(self.card.iterdir()), [])
        self.use(1)
        (self.home / "LangsRes/RoamlyPseudo.dll").write_bytes(b"MZ")
        self.assertEqual(self.answer("lang", "text", "32923", messages=[NOT_LOADED]), {"text": "Error!"})
        done = self.run_rlx("sizes", "shoes", "men")
        self.assertEqual((done.returncode, done.stderr.decode()), (0, f"[Error!] {NOT_LOADED}\n"))
        self.answer("settings", "get", "Roamlytix", "lang")  # needs no text

    def test_looking_makes_no_store(self):
        self.answer("lang", "text", "65535", status=1, messages=["There is no text 65535."])
        self.assertFalse(self.store.exists())


if __name__ == "__main__":
    unittest.main()

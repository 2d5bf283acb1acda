#!/usr/bin/env python3
"""Every change that `rlx` makes, where the disk is full and where nothing may be written: the fault is named, the exit
status says so, and what was there is there still."""

import os
import resource
import shutil
import signal
import subprocess
import unittest

from rlx_program import PROJECT, RLX, RlxTest

SERVER = os.path.join(os.path.dirname(RLX), "roamlytix-feedd")
MODULES = os.path.join(os.path.dirname(RLX), "LangsRes")
ONLY_READ = "can only be read. Changes are lost when the program ends."
NOBODY = 65534

CHANGES = [  # command, what is said of it, a part of it
    (["settings", "set", "Roamlytix", "fault", "--text", "two"], "The setting fault of Roamlytix could not be written."),
    (["pack", "add-item", "All", "All Items", "Charger"], "The packing list could not be saved. The old file is unchanged."),
    (["pack", "delete-item", "All", "All Items", "Passport"], "The packing list could not be saved. The old file is unchanged."),
    (["city", "refresh", "--year", "2031"], '"(cities.lst|rlxCities)" could not be saved.'),
    (["lang", "install", "CARD", "RoamlyFrench.dll"], '"RoamlyFrench.dll" could not be saved'),
    (["lang", "use", "1"], "The setting lang of Roamlytix could not be written."),
    (["units", "add", "6", "fault", "3"], "The units could not be saved. Nothing was changed."),
    (["skin", "use", "HOME/other.skn"], "The setting skin of Roamlytix could not be written."),
    (["rates", "update"], '(The rates could not be stored|"rlxCurrencies" could not be saved)'),
    (["news", "fetch"], "The news page could not be saved."),
    (["weather", "update", "London"], "could not be (saved|stored|written)"),
]


def full():
    """No file grows: what a write meets on a full disk, without a disk of its own."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


def nobody():
    """Permissions do not bind the superuser."""
    if os.geteuid() == 0:
        os.setuid(NOBODY)


class Refusals(RlxTest):
    @classmethod
    def setUpClass(cls):
        words = [SERVER, "--listen", "127.0.0.1:0", "--data", PROJECT / "data"]
        cls.server = subprocess.Popen(words, stderr=subprocess.PIPE, text=True)
        said = next(line for line in cls.server.stderr if line.startswith("listening on port "))
        cls.address = "127.0.0.1:" + said.split()[-1]

    @classmethod
    def tearDownClass(cls):
        cls.server.kill()
        cls.server.communicate()

    def setUp(self):
        super().setUp()
        self.store = self.home / "device.db"
        for name in ("cities.lst", "cities.date", "cities.wet", "currs.lst", "currs.date", "default.skn"):
            shutil.copy(PROJECT / "data" / name, self.home)
        (self.home / "langs.dat").write_bytes(b"0,English,none@>")
        (self.home / "adrs.cfg").write_text(f"http://{self.address}/feed*")
        self.card = self.folder / "card"
        self.card.mkdir()
        for name in ("RoamlyFrench.dll", "RoamlyGerman.dll"):
            shutil.copy(os.path.join(MODULES, name), self.card)
        self.copy_skin()
        for words in (["clocks"], ["units", "list"], ["rates"], ["weather"], ["pack", "add-item", "All", "All Items", "Passport"],
                      ["settings", "set", "Roamlytix", "fault", "--text", "one"], ["settings", "set", "Roamlytix", "skin", "--text", "x"],
                      ["lang", "install", "CARD", "RoamlyGerman.dll"]):
            self.assertIn(self.do(words).returncode, (0, 1), words)

    def copy_skin(self):
        for folder in ("Portrait", "Landscape", "Square", "wiconset"):
            shutil.copytree(PROJECT / "data" / folder, self.home / folder)
        shutil.copy(PROJECT / "data/map.jpg", self.home)
        shutil.copy(self.home / "default.skn", self.home / "other.skn")

    def do(self, words, **options):
        words = [word.replace("CARD", str(self.card)).replace("HOME", str(self.home)) for word in words]
        return subprocess.run(self.words("--yes", *words), capture_output=True, text=True, timeout=60, **options)

    def everything(self):
        """All files but the store's own, and all that the store says."""
        files = {file: file.read_bytes() for file in self.home.rglob("*") if file.is_file() and "device.db" not in file.name}
        return files, [self.do(words).stdout for words in (["settings", "list"], ["units", "list"], ["rates"], ["pack", "show"])]

    def check(self, where, child):
        before = self.everything()
        for words, said in CHANGES:
            with self.subTest(where=where, words=words):
                done = self.do(words, preexec_fn=child)
                self.assertEqual(done.returncode, 1, done)
                self.assertRegex(done.stderr, said)
                self.assertEqual(self.everything(), before)
        shown = self.do(["time", "Paris"], preexec_fn=child)
        self.assertEqual((shown.returncode, shown.stdout.split()[1]), (0, "10/07/2026"), shown)

    def test_full_disk(self):
        self.check("full", full)

    def test_nothing_may_be_written(self):
        os.chmod(self.folder, 0o755)
        for path in [self.home, self.card, *self.home.rglob("*")]:
            os.chmod(path, 0o555 if path.is_dir() else 0o444)
        self.check("fixed", nobody)
        os.chmod(self.home, 0o755)

    def test_each_change_works_otherwise(self):
        for words, _ in CHANGES:
            before = self.everything()
            done = self.do(words)
            self.assertEqual(done.returncode, 0, done)
            self.assertNotEqual(self.everything(), before, words)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Every change that `rlx` makes, where the disk is full or has room for a part of it, and where nothing may be written:
the fault is named, the exit status says so, and what was there is there still."""

import contextlib
import os
import resource
import shutil
import sqlite3
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


ROOMS = [16, 48, 64, 96, 160, 256, 512]  # KiB that a disk has left: of each change, too little for it and enough
MARKS = {"RXSI", "newsid", "newnews"}  # settings in which a reply is noted before its page is kept


def full(kib=0):
    """No file grows beyond that: what a write meets on a full disk, without a disk of its own."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (kib * 1024, kib * 1024))


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
        self.spare = shutil.copytree(self.home, self.folder / "spare")

    def copy_skin(self):
        for folder in ("Portrait", "Landscape", "Square", "wiconset"):
            shutil.copytree(PROJECT / "data" / folder, self.home / folder)
        shutil.copy(PROJECT / "data/map.jpg", self.home)
        shutil.copy(self.home / "default.skn", self.home / "other.skn")

    def do(self, words, **options):
        words = [word.replace("CARD", str(self.card)).replace("HOME", str(self.home)) for word in words]
        return subprocess.run(self.words("--yes", *words), capture_output=True, text=True, timeout=60, **options)

    def kept(self):
        """All files but the store's own, and all that lies in the store, which must be whole."""
        copy = self.folder / "copy"
        shutil.rmtree(copy, ignore_errors=True)
        copy.mkdir()
        for file in self.home.glob("device.db*"):
            shutil.copy(file, copy)
        with contextlib.closing(sqlite3.connect(copy / "device.db")) as store:
            self.assertEqual(store.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
            rows = [store.execute(f"SELECT * FROM {table} ORDER BY 1, 2").fetchall() for table in ("record_database", "record")]
            values = store.execute("SELECT name, key, type, data FROM registry_value ORDER BY 1, 2").fetchall()
        return ({file: file.read_bytes() for file in self.home.rglob("*") if file.is_file() and "device.db" not in file.name},
                rows, [value for value in values if value[0].decode("utf-16-be") not in MARKS])

    def check(self, child, make_room=lambda: None):
        """Every change is made as a whole, and then taken back, or refused as a whole. Command and exit status of each."""
        before, statuses = self.kept(), set()
        for words, said in CHANGES:
            with self.subTest(words=words):
                make_room()
                done = self.do(words, preexec_fn=child)
                (self.home.parent / "ballast").unlink(missing_ok=True)
                statuses.add((*words[:2], done.returncode))
                if done.returncode == 0:
                    self.assertFalse(self.kept() == before, done)
                    shutil.rmtree(self.home)
                    shutil.copytree(self.spare, self.home)
                else:
                    self.assertEqual(done.returncode, 1, done)
                    self.assertRegex(done.stderr, said)
                    self.assertTrue(self.kept() == before, done)  # too long to be printed
        return statuses

    def check_all_refused(self, child):
        self.assertEqual(self.check(child), {(*words[:2], 1) for words, _ in CHANGES})
        shown = self.do(["time", "Paris"], preexec_fn=child)
        self.assertEqual((shown.returncode, shown.stdout.split()[1]), (0, "10/07/2026"), shown)
        return shown.stderr

    def check_rooms(self, where, check):
        statuses = set()
        for kib in ROOMS:
            with self.subTest(where=where, kib=kib):
                statuses |= check(kib)
        refused = [words for words, _ in CHANGES if words[0] != "pack"]  # a packing list is small
        self.assertEqual(statuses, {(*words[:2], 0) for words, _ in CHANGES} | {(*words[:2], 1) for words in refused})

    def test_full_disk(self):
        self.check_all_refused(full)

    def test_room_for_a_part(self):
        """By a limit, and where one may be mounted on a disk in memory."""
        self.check_rooms("limit", lambda kib: self.check(lambda: full(kib)))
        disk = self.folder / "disk"
        disk.mkdir()
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=16m", "none", disk], capture_output=True).returncode != 0:
            return
        self.addCleanup(subprocess.run, ["umount", "-l", disk])
        self.home = disk / "home"
        shutil.copytree(self.spare, self.home)
        self.store = self.home / "device.db"

        def leave(kib):
            space = os.statvfs(disk)
            (disk / "ballast").write_bytes(bytes(space.f_bavail * space.f_frsize - kib * 1024))

        self.check_rooms("disk", lambda kib: self.check(None, lambda: leave(kib)))

    def test_nothing_may_be_written(self):
        os.chmod(self.folder, 0o755)
        for path in [self.home, self.card, *self.home.rglob("*")]:
            os.chmod(path, 0o555 if path.is_dir() else 0o444)
        self.assertIn(ONLY_READ, self.check_all_refused(nobody))
        os.chmod(self.home, 0o755)

    def test_each_change_works_otherwise(self):
        for words, _ in CHANGES:
            before = self.kept()
            done = self.do(words)
            self.assertEqual(done.returncode, 0, done)
            self.assertFalse(self.kept() == before, words)


if __name__ == "__main__":
    unittest.main()

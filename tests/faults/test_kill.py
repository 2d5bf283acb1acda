#!/usr/bin/env python3
"""Kills a program that changes settings, packing list, skin, cities, languages, rates and units, at random instants.

    test_kill.py [--kills N] [--seed S]     with FAULT_CHANGER and RLX_BIN in the environment

After each kill everything is opened anew: what was said to be kept is there, and of the change that was under way all or
nothing. Every fifth time rlx itself is killed over a change, now and then over a first start. All other kills befall one
folder, so faults add up.
"""
import argparse
import collections
import datetime
import http.server
import json
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.append(str(ROOT / "tests/cli"))
from rlx_program import FeedHandler  # noqa: E402

CHANGER, RLX = os.environ["FAULT_CHANGER"], os.environ["RLX_BIN"]
KINDS = ["settings", "packing", "skin", "cities", "languages", "rates", "units"]  # in the changer's order
OLD = time.time() - 3600


class Trial:
    def __init__(self, seed):
        self.chance, self.folder = random.Random(seed), pathlib.Path(tempfile.mkdtemp())
        for name in ("cities.lst", "cities.date", "cities.wet", "currs.lst", "default.skn"):
            shutil.copy(ROOT / "data" / name, self.folder)
        shutil.copy(pathlib.Path(RLX).parent / "LangsRes/RoamlyFrench.dll", self.folder / "Module.dll")
        entries = (self.folder / "currs.lst").read_text("latin-1").split("\n", 1)[1].split("#")
        self.codes = [entry.split("_")[0] for entry in entries[:40]]
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), FeedHandler)
        self.server.requests = []
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        (self.folder / "adrs.cfg").write_text(f"http://127.0.0.1:{self.server.server_port}/feed*")
        self.changer("once")  # makes the databases
        began = time.monotonic()
        self.kept = self.changer("once")
        # The kill comes within the start and two rounds, of rlx within the time of the last one that was not killed.
        self.span = collections.defaultdict(lambda: 0.1, {"": 1.5 * (time.monotonic() - began)})
        self.outcome = collections.defaultdict(collections.Counter)

    def changer(self, what):
        done = subprocess.run([CHANGER, self.folder, what], capture_output=True, text=True)
        if done.returncode != 0:
            self.fail(f"{what}: {done.stdout[-300:]}{done.stderr[-2000:]}")
        return numbers(done.stdout)

    def rlx_words(self, *words):
        return [RLX, "--home", self.folder, "--store", self.folder / "device.db", "--yes", *words]

    def ask(self, *words):
        done = subprocess.run(self.rlx_words("--json", *words), capture_output=True, text=True)
        if done.returncode != 0 or json.loads(done.stdout)["messages"]:
            self.fail(f"{words}: {done}")
        return json.loads(done.stdout)

    def fail(self, text):
        sys.exit(f"{text}\nfolder {self.folder}")

    def kill(self, command, span):
        """What it said, and whether it was killed before it ended."""
        began = time.monotonic()
        process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        try:
            out, error = process.communicate(timeout=self.chance.uniform(0, self.span[span]))
            self.span[span] = time.monotonic() - began
        except subprocess.TimeoutExpired:
            process.kill()
            out, error = process.communicate()
        if process.returncode not in (0, -9):
            self.fail(f"{command}: {process.returncode} {out[-300:]}{error[-2000:]}")
        return out, process.returncode == -9

    def check(self, row, under_way):
        found = self.changer("check")
        for kind, number in found.items():
            if number != self.kept[kind] and (kind != under_way or number != self.kept[kind] + 1):
                self.fail(f"{row}: {kind} {self.kept[kind]} was said to be kept, {number} is there")
        if row:
            self.outcome[row]["as after it" if found[under_way] != self.kept[under_way] else "as before it"] += 1
        self.kept = found

    def kill_changer(self):
        out, _ = self.kill([CHANGER, self.folder, "change"], "")
        said = numbers(out)
        self.kept.update(said)
        last = out.split("\n")[-2].split()[0] if said else KINDS[-1]
        under_way = KINDS[(KINDS.index(last) + 1) % len(KINDS)]
        self.check(under_way if said else "the start", under_way)

    def kill_rlx(self):
        """A change that has a number of the changer, or one beside those."""
        turn = str(self.chance.randrange(1 << 20))
        language, rates = self.kept["languages"] + 1, self.kept["rates"] + 1
        card, packed = self.folder / "card", str(self.kept["packing"])
        card.mkdir(exist_ok=True)
        shutil.copy(self.folder / "Module.dll", card / f"Roamly{language}.dll")
        self.server.answer = ("1005", "".join(f"{code}_{rates}#" for code in self.codes).encode(), 200)
        day = datetime.date(2000, 1, 1) + datetime.timedelta(rates)
        date = self.folder / "cities.date"
        year = str(2026 + (int(date.read_text()[:4]) + 1) % 10)
        setting = ["Roamlytix\\other", "name"]
        rows = [("settings", ["settings", "set", *setting, "--text", turn], lambda: self.ask("settings", "get", *setting), turn),
                ("packing", ["pack", "tick", packed, "All Items", packed], lambda: self.ask("pack", "show"), '"ticked": true'),
                ("units", ["units", "add", "5", f"unit {turn}", "2"], lambda: self.ask("units", "list", "5"), turn),
                ("cities", ["city", "refresh", "--year", year], date.read_text, year),
                ("languages", ["lang", "install", card, f"Roamly{language}.dll"], None, None),
                ("rates", ["rates", "update", "--now", f"{day}T12:00:00"], None, None)]
        kind, words, state, answer = self.chance.choice(rows)
        row = f"rlx {words[0]} {words[1]}"
        before = state and state()
        _, killed = self.kill(self.rlx_words(*words), row)
        if state:
            after = state()
            done = after != before
            if (done and answer not in json.dumps(after)) or (not done and not killed):
                self.fail(f"{words}: {before} became {after}")
            self.outcome[row]["as after it" if done else "as before it"] += killed
            self.check(None, None)
        else:
            self.kept[kind] += not killed
            self.check(row if killed else None, kind)
        self.outcome[row]["was quicker"] += not killed

    def kill_first_start(self):
        """While it makes the store; the next start has all cities and nothing to complain of."""
        store = self.folder / "fresh" / "device.db"
        words = ["--store", store, "city", "list"]
        _, killed = self.kill(self.rlx_words(*words), "first start")
        made = "as after it" if store.exists() else "as before it"
        self.outcome["rlx, a first start"][made if killed else "was quicker"] += 1
        cities = (self.folder / "cities.lst").read_bytes().split(b"\n", 1)[0]
        if len(self.ask(*words)["cities"]) != int(cities):
            self.fail("cities are missing after a first start")
        shutil.rmtree(store.parent)

    def leftovers(self):
        return [*self.folder.rglob(".rlx-*"), *self.folder.rglob("*.old")]


def numbers(text):
    """The last number of each kind; a line without its end was not said."""
    return {kind: int(number) for kind, number in (line.split() for line in text.split("\n")[:-1])}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--kills", type=int, default=20)
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 30))
    options = parser.parse_args()
    print(f"seed {options.seed}")
    trial, most_left = Trial(options.seed), 0
    for turn in range(options.kills):
        (trial.kill_first_start if turn % 20 == 7 else trial.kill_rlx if turn % 5 == 4 else trial.kill_changer)()
        most_left = max(most_left, len(trial.leftovers()))
    # What a killed program left beside its files goes when the next one saves there, once it is no longer new.
    for file in trial.leftovers():
        os.utime(file, (OLD, OLD))
    trial.changer("once")
    if trial.leftovers():
        trial.fail(f"left for ever: {trial.leftovers()}")
    print("| killed over | times | found as before it | found as after it | ended before the kill |\n|---|--:|--:|--:|--:|")
    for row, counts in sorted(trial.outcome.items(), key=lambda item: (item[0].startswith("rlx"), item[0])):
        before, after = counts["as before it"], counts["as after it"]
        print(f"| {row} | {before + after} | {before} | {after} | {counts['was quicker']} |")
    print(f"{options.kills} turns, nothing lost; changes kept: {trial.kept}; most files left behind at a time: {most_left}")
    shutil.rmtree(trial.folder)


main()

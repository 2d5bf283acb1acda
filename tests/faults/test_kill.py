#!/usr/bin/env python3
"""Kills a program that changes settings, packing list, skin, cities, languages, rates and units, at random instants.

    test_kill.py [--kills N] [--seed S]     with FAULT_CHANGER and RLX_BIN in the environment

After each kill everything is opened anew: what was said to be kept is there, or the one change behind it, whole. Every
fifth time rlx itself is killed over a new set of daylight-saving rules. All kills befall one folder, so faults add up.
"""
import argparse
import collections
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CHANGER, RLX = os.environ["FAULT_CHANGER"], os.environ["RLX_BIN"]
LONGEST = 0.9  # s until the kill: start and several rounds
LEFTOVER = ".rlx-"
OLD = time.time() - 3600


def run(folder, what):
    done = subprocess.run([CHANGER, folder, what], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{what}: {done.stdout[-300:]}{done.stderr[-2000:]}")
    return numbers(done.stdout)


def numbers(text):
    """The last number of each kind; a line without its end was not said."""
    lines = [line.split() for line in text.split("\n")[:-1]]
    return {kind: int(number) for kind, number in lines}


def kill(command, delay):
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    try:
        out, error = process.communicate(timeout=delay)
    except subprocess.TimeoutExpired:
        process.kill()
        out, error = process.communicate()
    if process.returncode not in (0, -9):
        sys.exit(f"{command}: {process.returncode} {out[-300:]}{error[-2000:]}")
    return out, process.returncode == -9


def leftovers(folder):
    return [file for file in pathlib.Path(folder).rglob("*") if file.name.startswith(LEFTOVER)]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--kills", type=int, default=20)
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 30))
    options = parser.parse_args()
    print(f"seed {options.seed}")
    chance = random.Random(options.seed)
    folder = tempfile.mkdtemp()
    for name in ("cities.lst", "cities.date", "cities.wet", "currs.lst", "default.skn"):
        shutil.copy(ROOT / "data" / name, folder)
    shutil.copy(pathlib.Path(RLX).parent / "LangsRes/RoamlyFrench.dll", os.path.join(folder, "Module.dll"))

    kept = run(folder, "once")
    hit = collections.Counter()
    most_left = 0
    for turn in range(options.kills):
        delay = chance.uniform(0.02, LONGEST)
        if turn % 5 == 4:
            year = chance.randrange(2026, 2036)
            place = ["--home", folder, "--store", folder + "/device.db"]
            _, killed = kill([RLX, *place, "city", "refresh", "--year", str(year)], delay / 4)
            hit["rlx" if killed else "rlx, too late"] += 1
        else:
            out, _ = kill([CHANGER, folder, "change"], delay)
            kept.update(numbers(out))
            lines = out.split("\n")[:-1]
            hit["after " + lines[-1].split()[0] if lines else "at the start"] += 1
        found = run(folder, "check")
        for kind, number in found.items():
            if number not in (kept[kind], kept[kind] + 1):
                sys.exit(f"turn {turn}: {kind} {kept[kind]} was said to be kept, {number} is there; folder {folder}")
        kept = found
        most_left = max(most_left, len(leftovers(folder)))

    # What a killed program left beside its files goes when the next one saves there, once it is no longer new.
    for file in leftovers(folder):
        os.utime(file, (OLD, OLD))
    run(folder, "once")
    if leftovers(folder):
        sys.exit(f"left for ever: {leftovers(folder)}")
    print(f"{options.kills} kills, nothing lost; changes kept: {kept}")
    print(f"killed: {dict(sorted(hit.items()))}; most files left behind at a time: {most_left}")
    shutil.rmtree(folder)


main()

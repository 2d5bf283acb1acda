#!/usr/bin/env python3
"""Lays out what a fuzz target begins with: make_seeds.py TARGET PROGRAMS OUT [REPLAY]

OUT gets the files of tests/fuzz/seeds/TARGET and tests/fuzz/found/TARGET, and those of our own data and modules (beside
the PROGRAMS) that the target's reader reads; of long files also their beginning alone. The program REPLAY is then run over OUT.
"""
import glob
import os
import shutil
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
DATA = {
    "pe_image": ["{bin}/LangsRes/*.dll"],
    "language_list": ["data/langs.dat"],
    "city_list": ["data/cities.lst"],
    "weather_places": ["data/cities.wet"],
    "skin": ["data/*.skn", "data/skins/*.skn"],
    "image": ["data/Portrait/clocks.jpg", "data/wiconset/*.png", "data/wiconset/*.bmp"],
    "rates_list": ["data/currs.lst"],
    "feed_address": ["data/adrs.cfg"],
    "news_page": ["data/news/*"],
}
BEGINNING = 1500


def main():
    target, programs, out, *replay = sys.argv[1:]
    shutil.rmtree(out, ignore_errors=True)
    os.makedirs(out)
    patterns = [f"tests/fuzz/{kind}/{target}/*" for kind in ("seeds", "found")] + DATA.get(target, [])
    for pattern in patterns:
        for file in sorted(glob.glob(os.path.join(ROOT, pattern.format(bin=os.path.abspath(programs))))):
            name = os.path.relpath(file, ROOT).replace("/", "_").replace("..", "")
            with open(file, "rb") as source:
                whole = source.read()
            with open(os.path.join(out, name), "wb") as copy:
                copy.write(whole)
            if len(whole) > 4 * BEGINNING:
                with open(os.path.join(out, name + ".begin"), "wb") as copy:
                    copy.write(whole[:BEGINNING])
    if not os.listdir(out):
        sys.exit(f"{target}: nothing to begin with")
    if replay:
        os.execv(replay[0], [replay[0], out])


main()

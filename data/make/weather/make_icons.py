#!/usr/bin/env python3
"""Draws both sets of weather icons and renders them to PNG files.

usage: make_icons.py OUT_DIR [--sheet FILE.svg]
Writes OUT_DIR/wiconset and OUT_DIR/wiconsets/Line. Needs rsvg-convert (Debian: librsvg2-bin). --sheet writes both sets
on light and dark ground into one picture, to look at.
"""

import argparse
import pathlib
import subprocess

import conditions
import styles

SIZE = 128
SETS = {"wiconset": styles.Colour, "wiconsets/Line": styles.Line}
COLUMNS = 9


def drawing(style, name):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {SIZE} {SIZE}" width="{SIZE}" height="{SIZE}">'
            f"<defs>{style.DEFS}</defs>{conditions.DRAWINGS[name](style)}</svg>\n")


def render(svg, target):
    subprocess.run(["rsvg-convert", "--format=png", f"--output={target}"], input=svg.encode(), check=True)


def write_sets(out):
    for folder, style in SETS.items():
        (out / folder).mkdir(parents=True, exist_ok=True)
        for name in conditions.DRAWINGS:
            render(drawing(style(), name), out / folder / f"{name}.png")


def write_sheet(file):
    rows = -(-len(conditions.DRAWINGS) // COLUMNS)
    parts = []
    height = rows * SIZE
    for panel, (style, ground) in enumerate((s, g) for s in SETS.values() for g in ("#ffffff", "#182030")):
        parts.append(f'<rect y="{panel * height}" width="{COLUMNS * SIZE}" height="{height}" fill="{ground}"/>')
        drawn = style()
        parts.append(f"<defs>{drawn.DEFS}</defs>")
        for k, name in enumerate(conditions.DRAWINGS):
            x, y = k % COLUMNS * SIZE, panel * height + k // COLUMNS * SIZE
            parts.append(f'<g transform="translate({x} {y})">{conditions.DRAWINGS[name](drawn)}</g>')
    file.write_text(f'<svg xmlns="http://www.w3.org/2000/svg" width="{COLUMNS * SIZE}" height="{4 * height}">'
                    + "".join(parts) + "</svg>\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("out", type=pathlib.Path)
    parser.add_argument("--sheet", type=pathlib.Path)
    options = parser.parse_args()
    write_sets(options.out)
    if options.sheet:
        write_sheet(options.sheet)


if __name__ == "__main__":
    main()

#!/usr/bin/python3
"""Draws the background pictures of the two shipped skins, checks their contrast and writes their .skn files.

    make_skins.py OUTPUT_ROOT        OUTPUT_ROOT is the data folder; needs numpy, PIL and cairo
"""
import os
import re
import sys

import numpy as np
from PIL import Image

import colours
import palettes
from canvas import Canvas
from scenes import SCENES

MAX_BYTES = 400_000
MAX_TEXT = 1499
BLOCK = 6  # pixels: contrast is measured on means of blocks that are smaller than a letter, so that one star does not count


def linear(channel):
    share = np.asarray(channel, float) / 255
    return np.where(share <= .04045, share / 12.92, ((share + .055) / 1.055) ** 2.4)


def luminance(rgb):
    """Relative luminance of sRGB colours (the last axis), 0 for black to 1 for white."""
    return linear(rgb) @ np.array([.2126, .7152, .0722])


def contrast(first, second):
    high, low = np.maximum(first, second), np.minimum(first, second)
    return (high + .05) / (low + .05)


def rgb(code):
    return tuple(int(code[k:k + 2], 16) for k in (0, 2, 4))


def is_colour(value):
    return re.fullmatch("[0-9A-F]{6}", value) is not None


def skin_text(sections):
    out = []
    for name, settings in sections.items():
        out.append(f"[{name}]")
        for key, value in settings.items():
            if is_colour(value):
                red, green, blue = rgb(value)
                value = red + 256 * green + 65536 * blue
            out.append(f"{key}@{value}")
        out.append(">")
    return "\r\n".join(out) + "\r\n*"


def draw_pictures(folder, palette):
    """Returns the luminance blocks of each picture as it was written, all layouts together."""
    blocks = {}
    for name, scene in SCENES.items():
        parts = []
        for layout, (width, height) in colours.LAYOUTS.items():
            os.makedirs(os.path.join(folder, layout), exist_ok=True)
            path = os.path.join(folder, layout, name + ".jpg")
            canvas = Canvas(width, height)
            scene(canvas, palette[name])
            canvas.save(path)
            if os.path.getsize(path) >= MAX_BYTES:
                sys.exit(f"{path}: {os.path.getsize(path)} bytes are too many")
            light = luminance(np.asarray(Image.open(path)))
            high, wide = height // BLOCK, width // BLOCK
            parts.append(light[:high * BLOCK, :wide * BLOCK].reshape(high, BLOCK, wide, BLOCK).mean((1, 3)).ravel())
        blocks[name] = np.concatenate(parts)
    return blocks


def check_contrast(sections, blocks):
    """Prints the worst contrast of each text colour over each ground; returns how many are too low."""
    low = 0
    for limit, table in ((4.5, colours.TEXTS), (3.0, colours.MARKS)):
        for section, key, grounds in table:
            text = luminance(rgb(sections[section][key]))
            for ground in grounds:
                if "/" in ground:
                    ground_section, ground_key = ground.split("/")
                    behind = luminance(rgb(sections[ground_section][ground_key]))
                else:
                    behind = blocks[ground]
                worst = float(np.min(contrast(text, behind)))
                low += worst < limit
                print(f"  {section}/{key} on {ground}: {worst:.2f}{'  TOO LOW' if worst < limit else ''}")
    return low


def main():
    root = sys.argv[1]
    low = 0
    for path, sections, palette in (("default.skn", colours.DEFAULT, palettes.DAY),
                                    ("skins/Night/night.skn", colours.NIGHT, palettes.NIGHT)):
        file = os.path.join(root, path)
        text = skin_text(sections)
        if len(text) > MAX_TEXT:
            sys.exit(f"{file}: {len(text)} characters are too many")
        blocks = draw_pictures(os.path.dirname(file), palette)
        with open(file, "wb") as out:
            out.write(text.encode("latin-1"))
        print(f"{file}: {len(text)} characters")
        low += check_contrast(sections, blocks)
    if low:
        sys.exit(f"{low} contrasts are too low")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main()

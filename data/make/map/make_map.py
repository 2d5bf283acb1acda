#!/usr/bin/python3
"""Draws the world maps of the two shipped skins.

    make_map.py INPUTS OUTPUT_ROOT        INPUTS is the folder that fetch.sh fills, OUTPUT_ROOT the data folder

Equirectangular, centred on Greenwich: x = (longitude + 180) / 360 * width, y = (90 - latitude) / 180 * height.

The night side is made by ANDing the picture with the skin's SHADCLR. A mask of 2^n - 1 takes a fixed amount away from every
pixel, and nothing else, where the channel lies in 2^n .. 2^(n+1) - 1; any other value would wrap and turn bright spots
dark. The light map therefore keeps to 128..255, the dark one to 32..63 red and 64..127 green and blue, and what was written
is read back and checked.
"""
import os
import sys

import numpy as np
from PIL import Image

import geometry
from chart import Chart
from fields import gaussian, mix, natural_fields, ramp, resize

MAX_BYTES = 400_000


class Look:
    """Colours of one map; every triple is RGB 0..255."""

    def __init__(self, floor, sea, land, ice, lake, border, coast, tint):
        self.floor = np.array(floor)        # smallest value of each channel; the largest is twice that, less one
        self.sea = sea            # ramp from the deep sea over the shelf to the shore
        self.land = land          # ramp from dark forest over grassland and desert to bright rock
        self.ice = ice
        self.lake = lake
        self.border = border      # colour, opacity
        self.coast = coast        # colour, opacity
        self.tint = tint          # share of the natural colour mixed into the land ramp


LIGHT = Look((128, 128, 128), sea=[(146, 186, 216), (160, 200, 226), (186, 220, 236)],
             land=[(176, 206, 166), (212, 224, 178), (238, 226, 194), (246, 238, 222)],
             ice=(250, 252, 254), lake=(170, 208, 230), border=((150, 146, 140), .5), coast=((136, 166, 178), .55), tint=.45)
DARK = Look((32, 64, 64), sea=[(34, 68, 90), (35, 71, 97), (38, 80, 108)],
            land=[(46, 96, 100), (51, 106, 108), (56, 114, 114), (60, 119, 119)],
            ice=(62, 125, 126), lake=(37, 76, 102), border=((40, 82, 94), .75), coast=((57, 118, 124), .35), tint=0)

# folder under the skin's own, width: the skin's folder holds a small one for previews and the smallest screens
SIZES = [("", 480), ("Portrait", 960), ("Square", 1280), ("Landscape", 2048)]


def paint_map(look, chart, natural, texture):
    colour, depth = natural
    width, height = chart.width, chart.height
    land, lakes = chart.land(), chart.lakes()
    # the shelf: the sea bed's own depth, and a narrow glow along every coast that small sizes need
    glow = np.clip(gaussian(land, width / 320) * .9 + gaussian(land, width / 110) * .5, 0, 1)
    shelf = np.clip(.62 * resize(depth, width, height) + .55 * glow, 0, 1)
    sea = ramp(shelf, look.sea)
    latitude = 90 - (np.arange(height) + .5) * 180 / height
    sea = mix(sea, look.ice, np.repeat(np.clip((np.abs(latitude) - 72) / 18, 0, 1)[:, None] * .35, width, 1))

    natural_land = resize(colour, width, height)
    light = natural_land.mean(-1)
    green = natural_land[..., 1] - natural_land[..., 0]
    snow = np.clip((light - 228) / 14, 0, 1) * np.clip(1 - np.abs(natural_land[..., 0] - natural_land[..., 2]) / 22, 0, 1)
    dryness = np.clip((light - 165) / 62 - green / 60, 0, 1)
    ground = ramp(dryness, look.land)
    relief = (light - gaussian(light, width / 240)) / 255
    ground = mix(ground, natural_land, look.tint)
    ground = mix(ground, look.ice, snow) + relief[..., None] * look.floor * 1.1
    ground += resize(texture, width, height)[..., None] * look.floor * .012

    picture = mix(sea, ground, land)
    picture = mix(picture, look.lake, lakes * land)
    inside = np.clip(chart.borders(max(.55, width / 1500)), 0, 1) * land * (1 - lakes)
    picture = mix(picture, look.border[0], inside * look.border[1] * min(1, width / 1000 + .2))
    shore = np.clip(4 * land * (1 - land), 0, 1)
    picture = mix(picture, look.coast[0], shore * look.coast[1])
    return np.clip(picture, look.floor + 1, 2 * look.floor - 2)


def write_jpeg(picture, path, look):
    """Saves at the best quality that fits the limit; colours keep as far from the range's ends as JPEG's errors ask."""
    low, high = look.floor, 2 * look.floor - 1
    for quality in (95, 92, 90, 88, 85, 82, 78, 74):
        for margin in range(1, 12):
            held = np.clip(np.rint(picture), low + margin, high - margin).astype(np.uint8)
            Image.fromarray(held).save(path, quality=quality, subsampling=0, optimize=True)
            back = np.asarray(Image.open(path))
            if (back >= low).all() and (back <= high).all():
                break
        else:
            continue
        if os.path.getsize(path) < MAX_BYTES:
            return


def write_png(picture, path, _look):
    """Saves with as many palette colours as fit the limit; a ramp of few hues needs no more, and a palette adds no error."""
    for colours in (256, 192, 128, 96, 64, 48):
        image = Image.fromarray(np.rint(picture).astype(np.uint8))
        image.quantize(colours, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).save(path, optimize=True)
        if os.path.getsize(path) < MAX_BYTES:
            return


def check(path, look):
    back = np.asarray(Image.open(path).convert("RGB"))
    if (back < look.floor).any() or (back >= 2 * look.floor).any() or os.path.getsize(path) >= MAX_BYTES:
        sys.exit(f"{path}: does not fit into {MAX_BYTES} bytes and its colour range")
    print(f"{path}: {back.shape[1]}x{back.shape[0]}, {os.path.getsize(path)} bytes")


def main():
    inputs, root = sys.argv[1:3]
    rings, borders = geometry.load(os.path.join(inputs, "countries-50m.json"))
    natural = natural_fields(os.path.join(inputs, "natural-earth.png"), rings, borders)
    texture = np.random.default_rng(7).normal(0, 1, (180, 360))
    for look, folder, name, write in ((LIGHT, "", "map.jpg", write_jpeg), (DARK, "skins/Night", "map.png", write_png)):
        for layout, width in SIZES:
            target = os.path.join(root, folder, layout)
            os.makedirs(target, exist_ok=True)
            path = os.path.join(target, name)
            write(paint_map(look, Chart(width, rings, borders), natural, texture), path, look)
            check(path, look)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main()

"""A picture in floating point with vector shapes (cairo masks) laid over it.

Cairo only supplies coverage masks; colours are mixed here, so that soft gradients stay free of 8-bit steps until the end.
"""
import math

import cairo
import numpy as np
from PIL import Image


class Canvas:
    """width x height pixels; positions in shapes are pixels, `unit` is the shorter side."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.unit = min(width, height)
        self._rgb = np.zeros((height, width, 3))
        self._y, self._x = np.mgrid[0:height, 0:width] + .5

    def gradient(self, stops, lean=.12):
        """Fills the picture from the first colour at the top to the last at the bottom, leaning a little to the right."""
        along = np.clip((self._y / self.height + lean * (self._x / self.width - .5)) / 1, 0, 1)
        places = np.linspace(0, 1, len(stops))
        self._rgb = np.stack([np.interp(along, places, [s[k] for s in stops]) for k in range(3)], -1)

    def _mix(self, colour, share):
        self._rgb += (np.asarray(colour, float) - self._rgb) * share[..., None]

    def glow(self, x, y, radius, colour, strength):
        distance = np.hypot(self._x - x, self._y - y) / radius
        self._mix(colour, strength * np.exp(-2 * distance ** 2))

    def shape(self, colour, strength, paint, fade=None):
        """Lays `colour` over what paint(context) covers. fade = (y0, s0, y1, s1): strength factor s0 at row y0 to s1 at row y1."""
        surface = cairo.ImageSurface(cairo.FORMAT_A8, self.width, self.height)
        context = cairo.Context(surface)
        context.set_line_cap(cairo.LINE_CAP_ROUND)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        paint(context)
        surface.flush()
        rows = np.frombuffer(surface.get_data(), np.uint8).reshape(self.height, surface.get_stride())
        share = rows[:, :self.width] / 255 * strength
        if fade:
            y0, s0, y1, s1 = fade
            share = share * np.interp(self._y, (y0, y1), (s0, s1))
        self._mix(colour, share)

    def save(self, path):
        """A trace of fixed noise hides the steps of 8 bits; it is too weak to be seen."""
        noise = np.random.default_rng(1).uniform(-.5, .5, self._rgb.shape[:2])[..., None]
        pixels = np.clip(np.rint(self._rgb + noise), 0, 255).astype(np.uint8)
        Image.fromarray(pixels).save(path, quality=90, subsampling=0, optimize=True)


def ring(x, y, radius):
    def path(context):
        context.new_sub_path()
        context.arc(x, y, radius, 0, 2 * math.pi)
    return path


def stroked(width, *paths, dash=None):
    def paint(context):
        context.set_line_width(width)
        if dash:
            context.set_dash(dash)
        for path in paths:
            path(context)
            context.stroke()
    return paint


def filled(*paths):
    def paint(context):
        for path in paths:
            path(context)
        context.fill()
    return paint


def line(*points):
    def path(context):
        context.move_to(*points[0])
        for point in points[1:]:
            context.line_to(*point)
    return path


def curve(start, bend1, bend2, end):
    def path(context):
        context.move_to(*start)
        context.curve_to(*bend1, *bend2, *end)
    return path


def rounded(x, y, width, height, radius):
    def path(context):
        context.new_sub_path()
        for cx, cy, turn in ((x + width - radius, y + radius, -.5), (x + width - radius, y + height - radius, 0),
                             (x + radius, y + height - radius, .5), (x + radius, y + radius, 1)):
            context.arc(cx, cy, radius, turn * math.pi, (turn + .5) * math.pi)
        context.close_path()
    return path


def ridge(width, height, base, waves):
    """Area below a line of gentle waves: base row, and (amplitude, periods across the width, phase) for each wave."""
    points = [(x, base + sum(a * math.sin(2 * math.pi * n * x / width + phase) for a, n, phase in waves))
              for x in range(-4, width + 9, 4)]
    return line(*points, (width + 8, height + 8), (-4, height + 8), points[0])

"""The background pictures: one function per picture, the same scene for both skins, told apart by the palette.

All follow one pattern: a leaning gradient, one soft light, calm layers in the lowest third, and one large thin-lined emblem.
Nothing is small or strong enough to compete with text.
"""
import math

import numpy as np

from canvas import curve, filled, line, ridge, ring, rounded, stroked
from parts import case, graticule, layers, stars, ticks


def clocks(c, p):
    u = c.unit
    c.gradient(p.sky)
    sx, sy = .30 * c.width, .70 * c.height
    c.glow(sx, sy, .75 * u, p.light, .75 * p.glow)
    stars(c, p, 150, .66, 3, moon=(sx, sy, .09 * u))
    c.shape(p.light, p.disc, filled(ring(sx, sy, .085 * u)))
    layers(c, p, seed=.6)
    x, y, r = .80 * c.width, .21 * c.height, .36 * u
    c.shape(p.line, p.line_strength, stroked(.004 * u, ring(x, y, r)))
    c.shape(p.line, p.line_strength * .8, stroked(.003 * u, *ticks(x, y, .93 * r, .965 * r, 60)))
    c.shape(p.line, p.line_strength, stroked(.006 * u, *ticks(x, y, .87 * r, .965 * r, 12)))
    c.shape(p.line, p.line_strength * .8, stroked(.003 * u, ring(x, y, .72 * r), ring(x, y, .70 * r)))
    c.shape(p.line, p.line_strength * .8, stroked(.004 * u, *ticks(x, y, .64 * r, .70 * r, 24)))


def world(c, p):
    u = c.unit
    c.gradient(p.sky)
    stars(c, p, 120, .6, 8)
    x, y, r = .52 * c.width, 1.12 * c.height, max(.66 * c.width, .52 * c.height)
    c.glow(x, y, 1.35 * r, p.light, .55 * p.glow)
    c.shape(p.layers[0], p.layer_strength, filled(ring(x, y, r)), fade=(y - r, 1, c.height, .5))
    c.shape(p.line, p.line_strength, stroked(.003 * u, ring(x, y, r), *graticule(x, y, r, tilt=.5)))
    stops = [(.10 * c.width, .94 * c.height), (.46 * c.width, .86 * c.height), (.90 * c.width, .92 * c.height)]
    routes = [curve(a, (a[0] * .7 + b[0] * .3, min(a[1], b[1]) - .12 * u), (a[0] * .3 + b[0] * .7, min(a[1], b[1]) - .12 * u), b)
              for a, b in zip(stops, stops[1:])]
    c.shape(p.accent, .55, stroked(.0045 * u, *routes, dash=(.001 * u, .016 * u)))
    c.shape(p.accent, .6, filled(*(ring(*stop, .009 * u) for stop in stops)))


def weather(c, p):
    u = c.unit
    c.gradient(p.sky)
    x, y = .78 * c.width, .20 * c.height
    c.glow(x, y, .8 * u, p.light, .8 * p.glow)
    stars(c, p, 120, .6, 5, moon=(x, y, .14 * u))
    c.shape(p.light, p.disc, filled(ring(x, y, .13 * u)))
    c.shape(p.line, p.line_strength, stroked(.004 * u, ring(x, y, .19 * u)))
    rays = [ring(x, y, .26 * u), ring(x, y, .34 * u)] if p.stars else ticks(x, y, .23 * u, .30 * u, 24)
    c.shape(p.line, p.line_strength * (.5 if p.stars else 1), stroked((.003 if p.stars else .007) * u, *rays))
    rng = np.random.default_rng(12)
    for base, colour, size in ((.70, p.layers[0], .17), (.80, p.layers[1], .20), (.90, p.layers[2], .23)):
        floor, puffs, at = base * c.height, [], -.1 * c.width
        while at < 1.1 * c.width:
            radius = size * u * rng.uniform(.55, 1)
            puffs.append(ring(at, floor + .25 * size * u, radius))
            at += radius * .8
        c.shape(colour, p.layer_strength, filled(*puffs, line((0, floor + .2 * size * u), (c.width, floor + .2 * size * u),
                (c.width, c.height), (0, c.height))), fade=(floor - size * u, 1, c.height, .5))


def common(c, p):
    u = c.unit
    c.gradient(p.sky)
    c.glow(.25 * c.width, .15 * c.height, .9 * u, p.light, .6 * p.glow)
    stars(c, p, 120, .6, 21)
    layers(c, p, bases=(.80, .87, .94), amplitude=.014, seed=2.2)
    x, y, r = .80 * c.width, .30 * c.height, .34 * u
    c.shape(p.line, p.line_strength, stroked(.004 * u, ring(x, y, r), ring(x, y, .80 * r)))
    c.shape(p.line, p.line_strength * .8, stroked(.003 * u, *ticks(x, y, .83 * r, .94 * r, 72)))
    for length, width, turn in ((.62, .11, math.pi / 4), (.96, .13, 0)):
        for k in range(4):
            a = turn + k * math.pi / 2
            tip = (x + length * r * math.cos(a), y + length * r * math.sin(a))
            for side in (1, -1):
                b = a + side * math.pi / 4
                corner = (x + width * r * math.cos(b), y + width * r * math.sin(b))
                half = line((x, y), tip, corner, (x, y))
                c.shape(p.line, p.line_strength * (.75 if side > 0 else .35), filled(half))
    path = curve((-.05 * c.width, .80 * c.height), (.20 * c.width, .60 * c.height),
                 (.36 * c.width, .58 * c.height), (.60 * c.width, .64 * c.height))
    c.shape(p.accent, .5, stroked(.0045 * u, path, dash=(.001 * u, .016 * u)))
    c.shape(p.accent, .6, filled(ring(.60 * c.width, .64 * c.height, .009 * u)))


def converter(c, p):
    u = c.unit
    c.gradient(p.sky)
    c.glow(.2 * c.width, .1 * c.height, .9 * u, p.light, .6 * p.glow)
    x, y, r = .86 * c.width, 1.02 * c.height, .74 * u
    for k, share in enumerate((1.0, .78, .56)):
        c.shape(p.layers[k], p.layer_strength * .8, filled(ring(x, y, share * r)))
    begin, end = math.pi, 1.5 * math.pi
    c.shape(p.line, p.line_strength, stroked(.004 * u, ring(x, y, r)))
    c.shape(p.line, p.line_strength * .9, stroked(.003 * u, *ticks(x, y, .94 * r, .98 * r, 121, math.pi * .9, math.pi * 1.6, False)))
    c.shape(p.line, p.line_strength, stroked(.006 * u, *ticks(x, y, .89 * r, .98 * r, 25, math.pi * .9, math.pi * 1.6, False)))
    needle = begin + .62 * (end - begin)
    c.shape(p.accent, .55, stroked(.008 * u, line((x, y), (x + .86 * r * math.cos(needle), y + .86 * r * math.sin(needle)))))
    step, count = .0135 * u, int(c.width / (.0135 * u)) + 1
    for every, length, width in ((1, .018, .0025), (5, .028, .003), (10, .042, .004)):
        marks = [line((k * step, -.01 * u), (k * step, length * u)) for k in range(0, count, every)]
        c.shape(p.line, p.line_strength * .8, stroked(width * u, *marks))


def dialing(c, p):
    u = c.unit
    c.gradient(p.sky)
    x, y = .10 * c.width, 1.0 * c.height
    c.glow(x, y, 1.1 * u, p.light, .6 * p.glow)
    stars(c, p, 100, .5, 31)
    for k, radius in enumerate((.86, .64, .42)):
        c.shape(p.layers[k], p.layer_strength * .75, filled(ring(x, y, radius * u)))
    c.shape(p.line, p.line_strength, stroked(.004 * u, *(ring(x, y, q * u) for q in (.20, .42, .64, .86, 1.08, 1.30))))
    places = [(.42, -62), (.64, -25), (.86, -55), (1.08, -34), (1.30, -60), (.86, -80), (1.30, -22), (1.08, -72)]
    dots = [(x + q * u * math.cos(math.radians(a)), y + q * u * math.sin(math.radians(a))) for q, a in places]
    links = [(0, 2), (2, 3), (1, 3), (2, 4), (3, 6), (0, 5), (5, 7), (2, 7), (3, 4)]
    c.shape(p.line, p.line_strength * .8, stroked(.003 * u, *(line(dots[a], dots[b]) for a, b in links)))
    c.shape(p.accent, .55, filled(*(ring(dx, dy, .010 * u) for dx, dy in dots)))


def clothing(c, p):
    u = c.unit
    c.gradient(p.sky)
    c.glow(.3 * c.width, .12 * c.height, .9 * u, p.light, .6 * p.glow)
    for k, base in enumerate((.66, .77, .88)):
        waves = [(.05 * u, .9, 1.2 + 2.0 * k), (.02 * u, 1.9, .7 * k)]
        top = base * c.height
        c.shape(p.layers[k], p.layer_strength, filled(ridge(c.width, c.height, top, waves)), fade=(top, 1, c.height, .6))
        c.shape(p.line, p.line_strength * 1.1,
                stroked(.004 * u, ridge(c.width, c.height * 2, top + .022 * u, waves), dash=(.016 * u, .014 * u)))
    x, y, s = .74 * c.width, .20 * c.height, .36 * u

    def hanger(context):
        context.move_to(x - .09 * s, y - .30 * s)
        context.arc(x, y - .30 * s, .09 * s, math.pi, 2.5 * math.pi)
        context.line_to(x, y - .08 * s)
        context.line_to(x + .86 * s, y + .36 * s)
        context.curve_to(x + 1.0 * s, y + .44 * s, x + .96 * s, y + .54 * s, x + .82 * s, y + .54 * s)
        context.line_to(x - .82 * s, y + .54 * s)
        context.curve_to(x - .96 * s, y + .54 * s, x - 1.0 * s, y + .44 * s, x - .86 * s, y + .36 * s)
        context.line_to(x, y - .08 * s)
    c.shape(p.line, p.line_strength * 1.1, stroked(.010 * u, hanger))


def packing(c, p):
    u = c.unit
    c.gradient(p.sky)
    c.glow(.75 * c.width, .14 * c.height, .9 * u, p.light, .65 * p.glow)
    stars(c, p, 110, .5, 41)
    path = curve((-.04 * c.width, .40 * c.height), (.25 * c.width, .20 * c.height),
                 (.55 * c.width, .16 * c.height), (1.04 * c.width, .30 * c.height))
    c.shape(p.accent, .45, stroked(.0045 * u, path, dash=(.001 * u, .016 * u)))
    floor = .89 * c.height
    layers(c, p, bases=(.80, .87, .95), amplitude=.010, seed=1.1)
    c.shape(p.line, p.line_strength * .6, filled(rounded(.5 * c.width - .46 * u, floor - .012 * u, .92 * u, .03 * u, .015 * u)))
    case(c, p, p.layers[0], .50 * c.width - .28 * u, floor - .44 * u, .48 * u, .44 * u, (.2, .8))
    case(c, p, p.layers[1], .50 * c.width + .06 * u, floor - .31 * u, .36 * u, .31 * u, (.16, .28, .40, .52, .64, .76, .88))
    case(c, p, p.layers[2], .50 * c.width - .42 * u, floor - .22 * u, .42 * u, .22 * u, (.28, .72))


SCENES = {"clocks": clocks, "map_back": world, "weather": weather, "common": common, "convert": converter, "dial": dialing,
          "cloths": clothing, "pack": packing}

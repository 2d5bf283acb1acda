"""Parts that several background pictures share; `c` is the Canvas, `p` the Palette."""
import math

import numpy as np

from canvas import filled, line, ridge, ring, rounded, stroked


def layers(c, p, bases=(.74, .82, .90), amplitude=.022, seed=0):
    """Three ridges, each nearer and stronger than the one behind it."""
    for k, (base, colour) in enumerate(zip(bases, p.layers)):
        waves = [(c.unit * amplitude * (1 + .3 * k), 1.1 + .35 * k, seed + 1.9 * k),
                 (c.unit * amplitude * .45, 2.7 + .5 * k, seed * 2 + 4.1 * k)]
        top = base * c.height
        c.shape(colour, p.layer_strength, filled(ridge(c.width, c.height, top, waves)), fade=(top, 1, c.height, .55))


def stars(c, p, count, lowest, seed, moon=(0, 0, 0)):
    """Scatters stars over the sky down to `lowest` of the height, none before the moon (x, y, radius)."""
    if not p.stars:
        return
    rng = np.random.default_rng(seed)
    for size, share in ((.0011, .65), (.0017, .35)):
        places = [(rng.uniform(0, c.width), rng.uniform(0, lowest * c.height), rng.uniform(.7, 1.2)) for _ in range(int(count * share))]
        dots = [ring(x, y, c.unit * size * k) for x, y, k in places if math.dist((x, y), moon[:2]) > moon[2]]
        c.shape(p.stars, .55, filled(*dots), fade=(0, 1, lowest * c.height, .15))


def ticks(x, y, inner, outer, count, begin=0.0, end=2 * math.pi, closed=True):
    steps = count if closed else count - 1
    for k in range(count):
        a = begin + (end - begin) * k / steps
        yield line((x + inner * math.cos(a), y + inner * math.sin(a)), (x + outer * math.cos(a), y + outer * math.sin(a)))


def graticule(x, y, r, tilt):
    """Meridians and parallels of a globe seen from `tilt` radians above its equator, near side only."""
    def seen(lon, lat):
        px = math.cos(lat) * math.sin(lon)
        py = math.sin(lat) * math.cos(tilt) - math.cos(lat) * math.cos(lon) * math.sin(tilt)
        depth = math.sin(lat) * math.sin(tilt) + math.cos(lat) * math.cos(lon) * math.cos(tilt)
        return (x + r * px, y - r * py), depth >= 0

    def visible(samples):
        run = []
        for point, front in samples:
            if front:
                run.append(point)
            elif len(run) > 1:
                yield line(*run)
                run = []
            else:
                run = []
        if len(run) > 1:
            yield line(*run)

    turn = [math.radians(a) for a in range(-180, 181, 3)]
    for lon in range(-180, 180, 15):
        ends = 90 if lon % 45 == 0 else 75
        yield from visible([seen(math.radians(lon), math.radians(lat)) for lat in range(-ends, ends + 1, 3)])
    for lat in range(-75, 90, 15):
        yield from visible([seen(lon, math.radians(lat)) for lon in turn])


def case(c, p, colour, x, y, width, height, straps):
    u = c.unit
    body = rounded(x, y, width, height, .035 * u)
    c.shape(colour, .94, filled(body))
    handle = rounded(x + .36 * width, y - .06 * u, .28 * width, .12 * u, .025 * u)
    c.shape(p.line, p.line_strength, stroked(.004 * u, body))
    c.shape(p.line, p.line_strength, lambda context: (context.rectangle(0, 0, c.width, y - .002 * u), context.clip(),
                                                      stroked(.012 * u, handle)(context)))
    marks = [line((x + q * width, y), (x + q * width, y + height)) for q in straps]
    c.shape(p.line, p.line_strength * .9, stroked(.004 * u, *marks))

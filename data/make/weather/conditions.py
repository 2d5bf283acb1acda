"""One picture for each weather condition: name -> what is drawn, from back to front."""

import shapes

ALONE = (11, 27, 106)       # a cloud with nothing under it
OVER = (16, 12, 96)         # a cloud with something falling out of it
OVER_SUN = (10, 24, 92)     # the same with the sun behind it
SUN_BEHIND = (86, 39, 18)   # x, y, radius


def points(count, y=98, spread=24):
    """Places side by side under a cloud."""
    middle = 64
    return [(middle + (k - (count - 1) / 2) * spread, y) for k in range(count)]


def two_rows(upper=3, lower=2, first=90, second=112, spread=24):
    return points(upper, first, spread) + points(lower, second, spread)


def shifted(places, dx):
    return [(x + dx, y) for x, y in places]


def drizzle(style, places):
    return style.water("".join(shapes.streak(x, y, 9) for x, y in places), 6)


def rain(style, places, length=24, width=6.5):
    return style.water("".join(shapes.streak(x, y, length) for x, y in places), width)


def snow(style, places, radius=11):
    return style.snow("".join(shapes.flake(x, y, radius) for x, y in places))


def balls(style, places, radius):
    return "".join(style.ball(x, y, radius) for x, y in places)


def with_sun(style, cloud=OVER_SUN, sun=SUN_BEHIND):
    return style.sun(*sun, cloud=cloud) + style.cloud(*cloud)


def fog(style):
    lines = "".join(shapes.wave(x, y, width) for x, y, width in ((22, 92, 84), (34, 108, 72)))
    return style.cloud(*OVER) + style.fog(lines)


def rime_fog(style):
    lines = "".join(shapes.wave(x, y, width) for x, y, width in ((20, 92, 56), (32, 108, 44)))
    return style.cloud(*OVER) + style.fog(lines) + snow(style, [(101, 99)], 14)


def overcast(style):
    front, back = (6, 46, 92), (46, 20, 74)
    return style.cloud(*back, tone="grey", hidden_by=shapes.cloud(*front)) + style.cloud(*front)


def thunder(style, falling=""):
    flash = (62, 68, 1.04)
    return style.cloud(*OVER, tone="dark", hidden_by=shapes.bolt(*flash)) + falling + style.bolt(*flash)


DRAWINGS = {
    "clear-day": lambda s: s.sun(64, 64, 30),
    "mainly-clear-day": lambda s: with_sun(s, cloud=(14, 66, 72), sun=(70, 58, 28)),
    "partly-cloudy-day": lambda s: with_sun(s, cloud=(8, 50, 90), sun=(80, 46, 22)),
    "overcast": overcast,
    "fog": fog,
    "rime-fog": rime_fog,
    "light-drizzle": lambda s: s.cloud(*OVER) + drizzle(s, points(2, 92)),
    "drizzle": lambda s: s.cloud(*OVER) + drizzle(s, two_rows(2, 1, 90, 108)),
    "heavy-drizzle": lambda s: s.cloud(*OVER, tone="grey") + drizzle(s, two_rows(3, 2, 90, 108)),
    "freezing-drizzle": lambda s: s.cloud(*OVER) + drizzle(s, [(40, 90), (30, 108), (52, 108)]) + snow(s, [(86, 100)], 15),
    "light-rain": lambda s: s.cloud(*OVER) + rain(s, points(2)),
    "rain": lambda s: s.cloud(*OVER, tone="grey") + rain(s, points(3)),
    "heavy-rain": lambda s: s.cloud(*OVER, tone="dark") + rain(s, points(4, 100, 21), 34, 8),
    "freezing-rain": lambda s: s.cloud(*OVER, tone="grey") + rain(s, [(34, 98), (56, 98)]) + snow(s, [(89, 100)], 15),
    "light-snow": lambda s: s.cloud(*OVER) + snow(s, points(2, 98, 32), 12),
    "snow": lambda s: s.cloud(*OVER) + snow(s, points(3, 98, 30), 12),
    "heavy-snow": lambda s: s.cloud(*OVER, tone="grey") + snow(s, two_rows(3, 2, 89, 112, 30), 11),
    "snow-grains": lambda s: s.cloud(*OVER) + balls(s, two_rows(3, 2, 90, 107, 26), 4.6),
    "light-showers-day": lambda s: with_sun(s) + rain(s, shifted(points(2, 106), -8), 20),
    "showers-day": lambda s: with_sun(s) + rain(s, shifted(points(3, 106), -8), 22),
    "heavy-showers": lambda s: s.cloud(*OVER, tone="dark") + rain(s, two_rows(3, 2, 89, 110, 28), 19, 8),
    "light-snow-showers-day": lambda s: with_sun(s) + snow(s, shifted(points(2, 106, 32), -8), 12),
    "snow-showers-day": lambda s: with_sun(s) + snow(s, shifted(points(3, 106, 29), -8), 12),
    "thunderstorm": thunder,
    "thunderstorm-hail": lambda s: thunder(s, balls(s, [(30, 92), (98, 92)], 7)),
    "thunderstorm-heavy-hail": lambda s: thunder(s, balls(s, [(22, 89), (36, 110), (93, 110), (106, 89)], 8.5)),
    "not-available": lambda s: s.cloud(*ALONE) + s.question(64, 56),
}

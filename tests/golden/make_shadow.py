#!/usr/bin/env python3
"""Draws the golden pictures of the night shadow, strip by strip and row by row, apart from the program's own code.

usage: make_shadow.py        writes shadow/*.txt beside this script: "#" night, "." day, first line the picture's name
"""
import math
import pathlib

PI = 3.141592654
RAD = PI * 0.005555555555555556
DEG = 180 / PI
WIDTH, HEIGHT, MARGIN = 76, 36, 2

INSTANTS = {
    "june_solstice": (2024, 6, 20, 20, 51, 0),
    "december_solstice": (2024, 12, 21, 9, 21, 0),
    "march_equinox": (2024, 3, 20, 3, 6, 0),
    "september_equinox": (2024, 9, 22, 12, 44, 0),
    "northern_polar_day": (2025, 5, 10, 0, 0, 0),
    "southern_polar_day": (2025, 11, 10, 12, 0, 0),
}


def within(value, turn):
    while value > turn:
        value -= turn
    while value < 0:
        value += turn
    return value


def julian_day(year, month, day):
    if month < 3:
        year, month = year - 1, month + 12
    century = year // 100
    return int(365.25 * (year + 4716)) + int(30.6001 * (month + 1)) + day + 2 - century + century // 4 - 1524.5


def sun(t):
    mean = within(280.46646 + 36000.76983 * t + (0.0003032 * t) ** 2, 360)
    m = within(357.52911 + 35999.05029 * t - (0.0001537 * t) ** 2, 360) * RAD
    centre = ((1.914602 - 0.004817 * t - 1.4e-5 * t * t) * math.sin(m) + (0.019993 - 0.000101 * t) * math.sin(2 * m)
              + 0.000289 * math.sin(3 * m))
    omega = (125.04 - 1934.136 * t) * RAD
    longitude = (mean + centre - 0.00569 - 0.00478 * math.sin(omega)) * RAD
    eps = 23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - 0.001813 * t))) / 60) / 60 + 0.00256 * math.cos(omega)
    eps *= RAD
    ascension = within(DEG * math.atan2(math.cos(eps) * math.sin(longitude), math.cos(longitude)), 360)
    sidereal = within(100.46061837 + 36000.770053608 * t + 0.000387933 * t * t - t ** 3 / 38710000, 360)
    return ascension, math.asin(math.sin(eps) * math.sin(longitude)), sidereal


def is_night(row, declination, transit, fraction):
    latitude = (90 - max(row, 1) * 180 / HEIGHT) * RAD
    cos_h = ((math.sin(-0.8333333333333334 * RAD) - math.sin(declination) * math.sin(latitude))
             / (math.cos(declination) * math.cos(latitude)))
    if abs(cos_h) > 1:
        return cos_h > 1
    half = math.acos(cos_h) * DEG / 360
    rise, sunset = within(transit - half, 1), within(transit + half, 1)
    if rise < sunset:
        return fraction < rise or fraction > sunset
    return rise > sunset and sunset < fraction < rise


def picture(year, month, day, hour, minute, second):
    fraction = (second / 3600 + minute / 60 + hour) / 24
    ascension, declination, sidereal = sun((julian_day(year, month, day + fraction) - 2451545.0) / 36525)
    width, step = WIDTH - 2 * MARGIN, 1 if month in (3, 9) else 3
    pixels = [["."] * WIDTH for _ in range(HEIGHT)]

    def strip(c, top, bottom):
        for row in range(top, bottom):
            pixels[row][MARGIN + c] = "#"

    previous = (-1, -1)
    for c in range(0, width + 2, step):
        transit = within((ascension + 180 - c * 360 / width - sidereal) / 360, 1)
        rows = [row for row in range(HEIGHT) if is_night(row, declination, transit, fraction)]
        current = (rows[0], rows[-1]) if rows else (-1, -1)
        if rows:
            strip(c, *current)
        if previous[0] >= 0:
            for k in range(1, step):
                strip(c - step + k, *(p + k * int((q - p) / step) for p, q in zip(previous, current)))
        previous = current
    return "\n".join("".join(line) for line in pixels) + "\n"


def main():
    folder = pathlib.Path(__file__).parent / "shadow"
    for name, instant in INSTANTS.items():
        (folder / f"{name}.txt").write_text(f"{name}\n" + picture(*instant))


if __name__ == "__main__":
    main()

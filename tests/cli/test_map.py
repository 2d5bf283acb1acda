#!/usr/bin/env python3
"""`rlx sun`, `sky` and `map` from outside, the night side against a scan of every row written here."""

import math
import struct
import unittest
import zlib

from rlx_program import RlxTest

CITIES = ("6\n"
          "x;Equator;L;0;0.9;0;0;0;0;0;0\n"
          "x;Far South;L;0.2;-77.8;12;1;1;0;90;0\n"
          "x;Half;L;77.6;12.9;530;0;0;0;0;0\n"
          "x;North;L;15.6;78.2;1;1;88;2;298;3\n"
          "x;Summer;L;4.9;52.4;1;1;88;2;298;3\n"
          "x;West;L;-74;40.7;-5;1;67;2;305;2\n")
DEGREE = 3.141592654 * 0.005555555555555556


def within(value, span):
    while value > span:
        value -= span
    while value < 0:
        value += span
    return value


def brute_bands(width, height, step, sky, fraction):
    """The first and last night row of each computed column, every row tested."""
    low, declination, bands = math.sin(-5 / 6 * DEGREE), sky["declination"], []
    for column in range(0, width + 2, step):
        transit = within((sky["rightAscension"] + 180 - column * 360 / width - sky["siderealTime"]) / 360, 1)
        rows = []
        for row in range(height):
            latitude = (90 - max(row, 1) * 180 / height) * DEGREE  # at the pole itself the neighbour's answer
            cosine = (low - math.sin(declination) * math.sin(latitude)) / (math.cos(declination) * math.cos(latitude))
            if -1 <= cosine <= 1:
                half = math.acos(cosine) / DEGREE / 360
                rise, down = within(transit - half, 1), within(transit + half, 1)
                night = (fraction < rise or fraction > down) if rise < down else (down < fraction < rise)
            else:
                night = cosine > 1
            if night:
                rows.append(row)
        bands.append([rows[0], rows[-1]] if rows else [-1, -1])
    return bands


def png_pixels(data):
    """Width, height and rows of RGB triples of a PNG file with unfiltered or simply filtered rows."""
    at, size, packed = 8, None, b""
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + length]
        if kind == b"IHDR":
            size = struct.unpack(">IIBB", body[:10])
        if kind == b"IDAT":
            packed += body
        at += 12 + length
    width, height, depth, colours = size
    assert (depth, colours) == (8, 2), size
    raw, before, rows = zlib.decompress(packed), bytes(3 * width), []
    for y in range(height):
        kind, line = raw[y * (3 * width + 1)], bytearray(raw[y * (3 * width + 1) + 1:(y + 1) * (3 * width + 1)])
        for i in range(len(line)):
            left, up = line[i - 3] if i > 2 else 0, before[i]
            corner = before[i - 3] if i > 2 else 0
            guess = left + up - corner
            near = min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]
            line[i] = (line[i] + (0, left, up, (left + up) // 2, near)[kind]) & 255
        rows.append([tuple(line[3 * x:3 * x + 3]) for x in range(width)])
        before = line
    return width, height, rows


class Sun(RlxTest):
    def test_rows(self):
        self.cities(CITIES)
        self.answer("settings", "set", "Roamlytix\\wrldclk", "syncltz", "--dword", "1")
        rows = (  # city, words, now, then sunrise, sunset, day length, zone
            ("summer time", "Summer", (), "2026-07-10T12:00:00", 2),
            ("the city's own date is one ahead", "Half", (), "2026-07-10T20:00:00", 5.3),
            ("winter by date", "Summer", ("--date", "2026-1-10"), "2026-07-10T12:00:00", 1),
            ("last day of summer, all of it", "Summer", ("--date", "2026-10-25"), "2026-01-01T00:00:00", 2),
            ("the day after", "Summer", ("--date", "2026-10-26"), "2026-07-10T12:00:00", 1),
        )
        for name, city, words, now, zone in rows:
            with self.subTest(name):
                answer = self.answer("sun", city, *words, now=now)
                self.assertEqual(answer["zone"], zone)
                for member in ("sunrise", "sunset", "dayLength"):
                    hours = answer[f"{member}Hours"]
                    self.assertEqual(answer[member], f"{int(hours):02}:{int((hours - int(hours)) * 60):02}")
        ahead = self.answer("sun", "Half", now="2026-07-10T20:00:00")
        self.assertEqual(ahead, self.answer("sun", "Half", "--date", "2026-07-11", now="2026-01-01T00:00:00"))

    def test_almanac_and_poles(self):
        self.cities(CITIES)
        self.assertEqual(self.answer("sun", "Equator", "--date", "2026-03-20")["dayLength"], "12:00")
        summer = self.answer("sun", "Summer", "--date", "2026-06-21")  # the almanac of Amsterdam
        self.assertAlmostEqual(summer["sunriseHours"], 5 + 18 / 60, delta=8 / 60)
        self.assertAlmostEqual(summer["sunsetHours"], 22 + 6 / 60, delta=8 / 60)
        night = self.answer("sun", "North", "--date", "2026-12-21")
        self.assertEqual([night[m] for m in ("sunrise", "sunriseHours", "sunsetHours", "dayLengthHours")],
                         ["", None, None, None])
        day = self.answer("sun", "North", "--date", "2026-06-21")
        self.assertEqual(day["dayLength"], "23:59")
        self.assertIn("The sun does not rise", self.run_rlx("sun", "North", "--date", "2026-12-21").stdout.decode())
        self.assertIn("The sun does not set", self.run_rlx("sun", "Far", "--date", "2026-12-21").stdout.decode())

    def test_sky(self):
        answer = self.answer("sky", "--ut", "1992-10-13T0:0:0")  # a textbook's example: 198.38083, -7.78507 degrees
        self.assertEqual(answer["julianDay"], 2448908.5)
        self.assertAlmostEqual(answer["rightAscension"], 198.38083, places=3)
        self.assertAlmostEqual(math.degrees(answer["declination"]), -7.78507, places=3)
        self.assertAlmostEqual(self.answer("sky", "--ut", "1987-04-10T00:00:00")["siderealTime"], 197.693195, places=5)


class Map(RlxTest):
    def skin(self, mask, image=None):
        if image:
            (self.home / "map.png").write_bytes(image)
        skin = self.home / "x.skn"
        skin.write_bytes(f"[General]\r\nTBC@255\r\n>\r\n[Map]\r\nMI@\\map.png\r\nSHADCLR@{mask}\r\n>\r\n*".encode())
        return str(skin)

    @staticmethod
    def png(width, height, grey):
        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
        rows = (b"\0" + bytes([grey]) * 3 * width) * height
        return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))

    def test_bands_are_what_every_row_says(self):
        compared = 0
        for instant in ("2026-03-20T06:00:00", "2026-06-21T00:00:00", "2026-09-23T17:31:12", "2026-11-22T21:10:05",
                        "2026-12-21T12:00:00"):
            sky = self.answer("sky", "--ut", instant)
            hour, minute, second = (int(part) for part in instant[11:].split(":"))
            fraction = (second * (1 / 3600) + minute * (1 / 60) + hour) * (1 / 24)
            for size, margin in ((120, 60), 0), ((97, 51), 4):
                answer = self.answer("map", "--size", f"{size[0]}x{size[1]}", "--margin", str(margin), "--ut", instant)
                with self.subTest(instant=instant, size=size):
                    self.assertEqual(answer["step"], 1 if instant[5:7] in ("03", "09") else 3)
                    bands = brute_bands(size[0] - 2 * margin, size[1], answer["step"], sky, fraction)
                    self.assertEqual(answer["bands"], bands)
                    compared += len(bands)
        self.assertGreater(compared, 600)

    def test_picture_is_the_image_and_the_mask(self):
        skin, out = self.skin(0x0000FF, self.png(60, 30, 200)), self.folder / "night.png"
        answer = self.answer("map", "--skin", skin, "--ut", "2026-06-21T12:00:00", "-o", str(out))
        width, height, rows = png_pixels(out.read_bytes())
        self.assertEqual((width, height, len(answer["bands"])), (60, 30, 21))
        for i, (top, bottom) in enumerate(answer["bands"][:-1]):
            column = [rows[y][3 * i] for y in range(height)]
            night = [top <= y < bottom for y in range(height)]  # a column ends before its last night row
            self.assertEqual(column, [(200, 0, 0) if dark else (200, 200, 200) for dark in night])

    def test_the_device_clock_tells_the_instant(self):
        self.cities(CITIES)
        self.answer("settings", "set", "Roamlytix\\wrldclk", "clock", "--dword", "2")  # 5 h 30 min ahead
        self.assertEqual(self.answer("map", "--size", "90x45", now="2026-06-21T03:00:00"),
                         self.answer("map", "--size", "90x45", "--ut", "2026-06-20T21:30:00"))

    def test_failures_leave_nothing(self):
        out = self.folder / "night.png"
        rows = (  # name, words, exit status, what the message names
            ("no folder", ("--size", "8x4", "-o", "/nowhere/at/all.png", "--skin", "SKIN"), 1, "/nowhere/at/all.png"),
            ("no skin", ("--skin", "/none.skn", "-o", str(out)), 1, "/none.skn"),
            ("broken image gives no size", ("--skin", "SKIN", "-o", str(out)), 1, "map.png"),
            ("no width", ("--size", "0x4", "-o", str(out)), 2, "0x4"),
            ("negative", ("--size=-8x4", "-o", str(out)), 2, "-8x4"),
            ("huge", ("--size", "1000000000x1000000000", "-o", str(out)), 2, "1000000000x1000000000"),
            ("many pixels", ("--size", "16384x16384", "-o", str(out)), 2, "16384x16384"),
            ("margins meet", ("--size", "8x4", "--margin", "4", "-o", str(out)), 2, '"4"'),
            ("no instant", ("--size", "8x4", "--ut", "2026-02-30T00:00:00", "-o", str(out)), 2, "2026-02-30"),
        )
        skin = self.skin(0)
        (self.home / "map.png").write_bytes(b"\x89PNG\r\n\x1a\nbroken")
        for name, words, status, named in rows:
            with self.subTest(name):
                done = self.run_rlx("map", *(skin if word == "SKIN" else word for word in words))
                self.assertEqual((done.returncode, done.stdout), (status, b""), done.stderr)
                self.assertIn(named, done.stderr.decode())
                self.assertFalse(out.exists())

    def test_broken_image_of_a_given_size_is_plain(self):
        skin, out = self.skin(0xFFFFFF), self.folder / "plain.png"
        (self.home / "map.png").write_bytes(b"no picture")
        self.answer("map", "--skin", skin, "--size", "8x4", "--ut", "2026-01-01T0:0:0", "-o", str(out),
                    messages=[f'The map image "{self.home}/map.png" cannot be shown.'])
        self.assertEqual(png_pixels(out.read_bytes())[2], [[(255, 0, 0)] * 8] * 4)


if __name__ == "__main__":
    unittest.main()

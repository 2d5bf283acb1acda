#!/usr/bin/env python3
"""`rlx sun`, `sky` and `map` from outside."""

import math
import struct
import unittest
import zlib

from rlx_program import RlxTest

CITIES = ("4\n"
          "x;Far South;L;0.2;-77.8;12;1;1;0;90;0\n"
          "x;Half;L;77.6;12.9;530;0;0;0;0;0\n"
          "x;North;L;15.6;78.2;1;1;88;2;298;3\n"
          "x;Summer;L;4.9;52.4;1;1;88;2;298;3\n"
)


def png_size(data):
    return struct.unpack(">II", data[16:24])


class Sun(RlxTest):
    def test_rows(self):
        self.cities(CITIES)
        self.answer("settings", "set", "Roamlytix\\wrldclk", "syncltz", "--dword", "1")
        self.assertEqual(self.answer("sun", "Summer", now="2026-07-10T12:00:00")["zone"], 2)
        self.assertEqual(self.answer("sun", "Summer", "--date", "2026-10-26", now="2026-07-10T12:00:00")["zone"], 1)
        ahead = self.answer("sun", "Half", now="2026-07-10T20:00:00")
        self.assertEqual(ahead, self.answer("sun", "Half", "--date", "2026-07-11", now="2026-01-01T00:00:00"))

    def test_poles(self):
        self.cities(CITIES)
        night = self.answer("sun", "North", "--date", "2026-12-21")
        self.assertEqual([night[m] for m in ("sunrise", "sunriseHours", "sunsetHours", "dayLengthHours")],
                         ["", None, None, None])
        self.assertIn("The sun does not rise", self.run_rlx("sun", "North", "--date", "2026-12-21").stdout.decode())
        self.assertIn("The sun does not set", self.run_rlx("sun", "Far", "--date", "2026-12-21").stdout.decode())

    def test_sky(self):
        answer = self.answer("sky", "--ut", "1992-10-13T0:0:0")  # a textbook's example: 198.38083, -7.78507 degrees
        self.assertAlmostEqual(answer["rightAscension"], 198.38083, places=3)
        self.assertAlmostEqual(math.degrees(answer["declination"]), -7.78507, places=3)


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

    def test_picture_shows_the_night(self):
        skin, pictures = self.skin(0x0000FF, self.png(60, 30, 200)), {}
        for hour in (0, 12):
            out = self.folder / f"{hour}.png"
            answer = self.answer("map", "--skin", skin, "--ut", f"2026-06-21T{hour}:00:00", "-o", str(out))
            self.assertEqual((answer["step"], len(answer["bands"])), (3, 21))
            pictures[hour] = out.read_bytes()
            self.assertEqual(png_size(pictures[hour]), (60, 30))
        self.assertNotEqual(pictures[0], pictures[12])

    def test_the_device_clock_tells_the_instant(self):
        self.cities(CITIES)
        self.answer("settings", "set", "Roamlytix\\wrldclk", "clock", "--dword", "1")  # 5 h 30 min ahead
        self.assertEqual(self.answer("map", "--size", "90x45", now="2026-06-21T03:00:00"),
                         self.answer("map", "--size", "90x45", "--ut", "2026-06-20T21:30:00"))

    def test_failures_leave_nothing(self):
        out = self.folder / "night.png"
        rows = (  # name, words, exit status, what the message names
            ("no folder", ("--size", "8x4", "-o", "/nowhere/at/all.png", "--skin", "SKIN"), 1, "/nowhere/at/all.png"),
            ("no skin", ("--skin", "/none.skn", "-o", str(out)), 1, "/none.skn"),
            ("broken image gives no size", ("--skin", "SKIN", "-o", str(out)), 1, "map.png"),
            ("many pixels", ("--size", "16384x16384", "-o", str(out)), 2, "16384x16384"),
            ("margins meet", ("--size", "8x4", "--margin", "4", "-o", str(out)), 2, '"4"'),
        )
        skin = self.skin(0)
        (self.home / "map.png").write_bytes(b"\x89PNG\r\n\x1a\nbroken")
        for name, words, status, named in rows:
            with self.subTest(name):
                done = self.run_rlx("map", *(skin if word == "SKIN" else word for word in words))
                self.assertEqual((done.returncode, done.stdout), (status, b""), done.stderr)
                self.assertIn(named, done.stderr.decode())
                self.assertFalse(out.exists())


if __name__ == "__main__":
    unittest.main()

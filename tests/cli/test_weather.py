#!/usr/bin/env python3
"""`rlx weather`, fed over HTTP by a server of the test's own."""

import unittest

from rlx_program import FeedTest

CITIES = ("2\nz;Amsterdam;Netherlands;4.9;52.4;1;1;88;2;298;3\n"
          "z;Tokyo;Japan;139.7;35.7;9;0;0;0;0;0\n")
NOW = "2026-11-22T21:10:05"
REPLY = ("weather_1#\nplace_amsterdam_nl#\nsource_Open-Meteo#\nissued_2026-11-22T18:00Z#\n"
         "2026-11-22_61;9.1;-4.0;4.2;75;14.5;230;81;08:14;17:01#\n2026-11-23_;;5;;;;;;;#\nend_2#\n")
NO_NEWS = {"cityIndex": 1, "place": "Tokyo:Japan", "feedName": "tokyo_japan", "fetched": None, "issued": None,
           "source": None, "stale": None, "days": []}
DAY = {"date": "2026-11-22", "code": 61, "condition": "Light rain", "high": 9.1, "low": -4.0, "precipitation": 4.2,
       "probability": 75, "windSpeed": 14.5, "windDirection": 230, "humidity": 81, "sunrise": "08:14", "sunset": "17:01"}
NOTHING = dict.fromkeys(DAY) | {"date": "2026-11-23", "low": 5.0}


class Weather(FeedTest):
    def setUp(self):
        super().setUp()
        self.cities(CITIES)
        (self.home / "cities.wet").write_text("2\nAmsterdam;Netherlands;amsterdam_nl\nTokyo;Japan;tokyo_japan\n")
        self.serve(REPLY.encode())

    def weather(self, *words, now=NOW, messages=(), **expected):
        asked = ["The connection <Loopback: Loopback> will be used."] if "update" in words else []
        return self.answer("--yes", "weather", *words, now=now, messages=asked + list(messages), **expected)["places"]

    def test_forecast_is_fetched_and_kept(self):
        self.assertEqual(self.weather("tok"), [NO_NEWS])
        fetched = self.weather("update", "ams")
        self.assertIn("&jc=111&c='amsterdam_nl'&", self.server.requests[0][0])
        place = {"cityIndex": 0, "place": "Amsterdam:Netherlands", "feedName": "amsterdam_nl",
                 "fetched": "2026-11-22T20:10Z", "issued": "2026-11-22T18:00Z", "source": "Open-Meteo", "stale": False,
                 "days": [DAY, NOTHING]}
        self.assertEqual(fetched, [place])
        self.assertEqual(self.weather("0", now="2026-11-24T09:00:00"), [place | {"stale": True}])
        self.assertEqual([p["cityIndex"] for p in self.weather()], [0, 684, 756, 565])

    def test_text_for_people(self):
        self.weather("update", "ams")
        done = self.run_rlx("weather", "ams", now=NOW)
        lines = done.stdout.decode().splitlines()
        self.assertEqual(lines[0], "Amsterdam: Forecast of 22/11/2026 18:00 UTC, Source: Open-Meteo")
        self.assertEqual(lines[2].split(), ["23/11", "Mon", "–", "5", "°C", "–", "–", "–", "not", "available"])


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""What the tools answer on the command line: converter, units, dialing codes, clothing sizes."""

import unittest

from rlx_program import RlxTest

BELOW_ZERO = "Below absolute zero"


class Converter(RlxTest):
    def test_results(self):
        rows = [
            # value, from, to, options, result, text
            ("1", "Short ton", "kg - Kilogram", (), 907.18474, "907.18474"),
            ("1", "Liter", "Cup [US]", (), None, "infinite"),
            ("-.5e3", "m - Meter", "km - Kilometer", ("--category", "1"), -0.5, "-0.5"),
        ]
        for value, source, target, options, result, text in rows:
            with self.subTest(value=value, source=source, target=target):
                self.assertEqual(self.answer("convert", value, source, target, *options),
                                 {"result": result, "text": text})
        tiny = self.answer("convert", "1e-300", "nm - Nanometer", "m - Meter")
        self.assertEqual((tiny["result"] < 2e-309, tiny["text"]), (True, "1e-309"))

    def test_below_absolute_zero(self):
        members = self.answer("convert", "-300", "°C - Degree Celsius", "K - Kelvin", status=1, messages=[BELOW_ZERO])
        self.assertEqual(members, {"result": 0, "text": "0"})

    def test_refusals(self):
        done = self.run_rlx("convert", "1", "furlongs", "m - Meter")
        self.assertEqual((done.returncode, done.stdout), (1, b""))
        self.assertIn("furlongs", done.stderr.decode())
        for words in (("1", "Feet"), ("1", "Feet", "Inch", "--category", "7")):
            self.assertEqual(self.run_rlx("convert", *words).returncode, 2, words)


class Units(RlxTest):
    def units(self, *words):
        return self.answer("units", "list", *words)["units"]

    def test_seed(self):
        self.assertEqual(len(self.units()), 350)
        self.assertEqual(self.units("weights"), self.units("6"))
        self.assertIn({"category": "6", "name": "Ton [short, US]", "factor": "907,18474"}, self.units("6"))

    def test_add_and_delete(self):
        before = self.units("6")
        added = self.answer("units", "add", "6", "Bag of cement", "25")["units"]
        self.assertEqual(added, before + [{"category": "6", "name": "Bag of cement", "factor": "25"}])
        self.assertEqual(self.answer("convert", "2", "Bag of cement", "kg - Kilogram")["result"], 50)
        question = "Delete < Bag of cement > Unit?"
        self.answer("--no", "units", "delete", "6", "Bag of cement", status=1, messages=[question])
        self.assertEqual(self.units("6"), added)
        after = self.answer("--yes", "units", "delete", "6", "Bag of cement", messages=[question])["units"]
        self.assertEqual(after, before)

    def test_refusals(self):
        self.answer("units", "add", "6", "tONNE", "1", status=1, messages=["Unit < tONNE > already exists!"])
        self.answer("units", "add", "9", "x", "1", status=1, messages=['There is no category of units "9".'])


class Dialing(RlxTest):
    def test_tables(self):
        rows = [
            # words, columns, rows, the row selected
            (("ger",), ["Country", "Code", "GMT"], 244, ["Germany", "+49", "+1"]),
            (("intl", "no such"), ["Country", "Code", "GMT"], 244, None),
            (("us", "fort"), ["City", "Region(State)", "Code"], 259, ["Fort Wayne", "Indiana(IN)", "+260"]),
        ]
        for words, columns, count, found in rows:
            with self.subTest(words=words):
                members = self.answer("dial", *words)
                self.assertEqual((members["columns"], len(members["rows"])), (columns, count))
                at = members["selected"]
                self.assertEqual(at if at is None else [cell.strip() for cell in members["rows"][at]], found)


    def test_wrong_table(self):
        self.assertEqual(self.run_rlx("dial", "canada", "tor").returncode, 2)


class Sizes(RlxTest):
    def test_tables(self):
        rows = [
            # words, title, a line, audience
            (("shi", "women"), "Women's blouses & sweaters", (0, "USA 8 10 12 14 16 18 20 22 24 26"), "women"),
            (("4",), "Men's suits", (3, "Japan (US/Japan) = 34/S 38/M 40/L 44/LL"), None),
        ]
        for words, title, (line, text), audience in rows:
            with self.subTest(words=words):
                members = self.answer("sizes", *words)
                self.assertEqual((members["title"], members["audience"]), (title, audience))
                self.assertEqual((len(members["lines"]), members["lines"][line]), (4, text))

    def test_refusals(self):
        for word in ("s", "6", "hats"):  # "s" begins three names
            self.answer("sizes", word, status=1, messages=[f'There is no clothing category "{word}".'])
        self.assertEqual(self.run_rlx("sizes", "shoes", "dogs").returncode, 2)


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""`rlx pack` and `rlx tip` from outside: what they answer, refuse and leave in "pack.dat"."""

import unittest

from rlx_program import RlxTest

NEW = b">\r\nAll\r\n*\r\nAll Items\r\n<"
MISSING = "{} < {} > was not found."
BAD_ITEM = "An item needs a text of one line that does not begin with <, > or *."
BAD_NAME = "A name needs a text of one line, at most 50 characters, that does not begin with <, > or *."
CLEAR_CATEGORY = "All Items of All Lists in this Category will be deleted, Continue ?"
CLEAR_EVERYTHING = "All Items of All Lists of All Categories will be deleted, Continue ?"


def packed(*categories):
    """The bytes of ("All", ("All Items", "Passport1", ...), ...), ..."""
    lines = []
    for name, *lists in categories:
        lines += [">", name]
        for one in lists:
            lines += ["*", *one]
    return "".join(line + "\r\n" for line in lines).encode() + b"<"


class Pack(RlxTest):
    def setUp(self):
        super().setUp()
        self.file, self.backup = self.home / "pack.dat", self.home / "pack.dat.bak"

    def trip(self):
        self.file.write_bytes(packed(("All", ("All Items", "Map0", "Hat1"), ("Desk", "Map1")),
                                     ("Trip", ("All Items", "Hat0"), ("Bag", "Hat0", "hat1"), ("bag",))))

    def test_new_file(self):
        empty = {"categories": [{"name": "All", "lists": [{"name": "All Items", "items": []}]}]}
        self.assertEqual(self.answer("pack", "show"), empty)
        self.assertEqual(self.file.read_bytes(), b"")
        self.assertEqual(self.answer("pack", "uncheck", "All", "All Items"), empty)
        self.assertEqual(self.file.read_bytes(), NEW)

    def test_what_is_saved(self):
        steps = (("add-category", "Trip"), ("add-list", "trip", "Bag"), ("add-item", "Trip", "Bag", "Size 1"),
                 ("add-item", "Trip", "Bag", "Zoë 😀"), ("tick", "Trip", "Bag", "SIZE 1"),
                 ("add-item", "All", "All Items", "Map"))
        for step in steps:
            answer = self.answer("pack", *step)
            self.assertEqual(self.answer("pack", "show"), answer)
        self.assertEqual(self.file.read_bytes(),
                         packed(("All", ("All Items", "Size 10", "Zoë 😀0", "Map0")),
                                ("Trip", ("All Items", "Size 10", "Zoë 😀0"), ("Bag", "Size 11", "Zoë 😀0"))))
        self.assertEqual(answer["categories"][1]["lists"][1]["items"],
                         [{"text": "Size 1", "ticked": True}, {"text": "Zoë 😀", "ticked": False}])
        done = self.run_rlx("pack", "show")
        self.assertTrue(done.stdout.decode().endswith("  Bag\n    [x] Size 1\n    [ ] Zoë 😀\n"), done.stdout)
        self.assertFalse(self.backup.exists())

    def test_changes(self):
        everything = ("All", ("All Items", "Map0", "Hat1"), ("Desk", "Map1"))
        trip = ("Trip", ("All Items", "Hat0"), ("Bag", "Hat0", "hat1"), ("bag",))
        rows = (  # words, messages, categories afterwards
            ("tick|Trip|Bag|Hat", [], [everything, ("Trip", ("All Items", "Hat0"), ("Bag", "Hat1", "hat1"), ("bag",))]),
            ("delete-list|Trip|BAG", [], [everything, ("Trip", ("All Items", "Hat0"), ("bag",))]),
            ("untick|All|All Items|Hat", [], [("All", ("All Items", "Map0", "Hat0"), ("Desk", "Map1")), trip]),
            ("delete-item|Trip|Bag|HAT", [], [everything, ("Trip", trip[1], ("Bag", "hat1"), ("bag",))]),
            ("delete-category|TRIP", [], [everything]),
            ("clear|Trip|Bag", [], [everything, ("Trip", trip[1], ("Bag",), ("bag",))]),
            ("clear|Trip|All Items|--yes", [CLEAR_CATEGORY], [everything, ("Trip", ("All Items",), ("Bag",), ("bag",))]),
        )
        for words, messages, after in rows:
            with self.subTest(words):
                self.trip()
                self.answer("pack", *words.split("|"), messages=messages)
                self.assertEqual(self.file.read_bytes(), packed(*after))

    def test_refusals_write_nothing(self):
        rows = (
            ("add-category|trip", "Category < trip > already exists!"), ("add-category|" + "n" * 51, BAD_NAME),
            ("add-list|Trip|BAG", "List < BAG > already exists!"), ("add-list|No|x", MISSING.format("Category", "No")),
            ("add-item|Trip|Bag|Hat", "Item < Hat > already exists!"), ("add-item|Trip|Bag|*", BAD_ITEM),
            ("add-item|Trip|No|x", MISSING.format("List", "No")), ("tick|Trip|Bag|No", MISSING.format("Item", "No")),
            ("delete-category|all", "Can't delete <All> category!"),
            ("delete-list|Trip|All Items", "Can't delete <All Items> List!"),
            ("clear|Trip|All Items", CLEAR_CATEGORY), ("clear|All|All Items|--no", CLEAR_EVERYTHING),
        )
        self.trip()
        before = self.file.read_bytes()
        for words, message in rows:
            with self.subTest(words):
                self.assertEqual(self.answer("pack", *words.split("|"), status=1, messages=[message]), {})
                self.assertEqual((self.file.read_bytes(), self.backup.exists()), (before, False))

    def test_no_more_than_fits(self):
        for words, message in ((["add-category"], "Max. of categories reached!"), (["add-list", "All"], "Max. of lists reached!")):
            words = ["pack", *words]
            for number in range(1, 10):
                self.answer(*words, f"n{number}")
            before = self.file.read_bytes()
            self.answer(*words, "n10", status=1, messages=[message])
            self.assertEqual(self.file.read_bytes(), before)


class Tip(RlxTest):
    def test_answers(self):
        for words, total in (("--no-first", "108.00"), ("--no-second", "115.00")):
            self.assertEqual(self.answer("tip", "100", "--first", "15", "--second", "8", words),
                             {"firstAmount": "= 15.00", "secondAmount": "= 8.00", "total": total})
        self.assertEqual(list(self.folder.iterdir()), [self.home])

    def test_refused_rate_counts_as_before(self):
        answer = self.answer("tip", "100", "--first", "100.01", "--second", "8",
                             messages=["Value must be between 0% and 100%"])
        self.assertEqual((answer["firstAmount"], answer["total"]), ("= 0.00", "108.00"))


if __name__ == "__main__":
    unittest.main()

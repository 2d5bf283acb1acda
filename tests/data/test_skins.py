"""The shipped skins and icons: what the self-check of the program does not look at."""
import pathlib
import unittest
import xml.etree.ElementTree

DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
MAX_CHARACTERS = 1499
MAX_IMAGE_BYTES = 400_000


class ShippedSkins(unittest.TestCase):
    def test_texts_and_pictures_are_small(self):
        for path in (DATA / "default.skn", DATA / "skins" / "Night" / "night.skn"):
            text = path.read_bytes().decode("latin-1")
            self.assertLessEqual(len(text), MAX_CHARACTERS)
            self.assertTrue(text.endswith("\r\n*"))
            self.assertNotIn("<", text)
            self.assertEqual(text.count("\n"), text.count("\r\n"))
        for path in [*DATA.rglob("*.jpg"), *DATA.rglob("map.png")]:
            self.assertLess(path.stat().st_size, MAX_IMAGE_BYTES, path)

    def test_icons_are_one_family(self):
        icons = sorted((DATA / "icons").glob("*.svg"))
        self.assertGreaterEqual(len(icons), 27)
        for path in icons:
            root = xml.etree.ElementTree.parse(path).getroot()
            if path.stem != "roamlytix":
                look = [root.get(key) for key in ("viewBox", "fill", "stroke", "stroke-width")]
                self.assertEqual(look, ["0 0 24 24", "none", "#000", "2"], path)
                self.assertFalse([e for e in root.iter() if e is not root and e.get("stroke")], path)


if __name__ == "__main__":
    unittest.main()

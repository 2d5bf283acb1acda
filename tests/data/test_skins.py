"""The shipped skins, read as the program reads them: every key, folder and picture must be there and fit the limits."""
import pathlib
import unittest
import xml.etree.ElementTree

DATA = pathlib.Path(__file__).resolve().parents[2] / "data"
MISSING = "!.!"
MAX_CHARACTERS = 1499
MAX_IMAGE_BYTES = 400_000

COLOURS = {
    "General": "TBC PC PTC",
    "Clocks": "CMDC CMD CMCN CMSC CMAC CODC COD COCN COAC",
    "Weather": "CBBC CBTC FBBC FBTC SATC DAYSC CNSC MOREC",
    "Map": "CNC DCC ACC DC DLC RSTBC RSTTC RSIBC RSITC SHADCLR",
    "Currency": "SumC STC PanC PCEC PBC UPDC BKC",
    "Tools": "PCC PCTC PBCC TLC PCD PCTD PCS PBCS TC1S TC2S TTCS PCP PBCP",
}
# pictures of a layout folder: key -> the folders that hold it, by their key in [Common Folders]
IMAGES = {
    "Clocks": {"BP": "P", "BL": "L", "BS": "S"},
    "Weather": {"BP": "P", "BL": "L", "BS": "S"},
    "Map": {"BP": "P", "BL": "L", "BS": "S", "MI": "PLS"},
    "Tools": {"BC": "PLS", "BD": "PLS", "BS": "PLS", "BP": "PLS"},
}
OTHERS = {"Description": "N", "Common Folders": "P L S", "General": "IF", "Weather": "WICOF"}


def section_of(text, name):
    start = text.find(f"[{name}]")
    if start < 0:
        return MISSING
    rest = text[start:]
    return rest.split(">")[0] if ">" in rest else rest.split("*")[0]


def value_of(section, key):
    start = section.find(key + "@")
    if start < 0:
        return MISSING
    return section[start + len(key) + 1:].split("\n")[0][:-1]


class ShippedSkins(unittest.TestCase):
    def skins(self):
        for path in (DATA / "default.skn", DATA / "skins" / "Night" / "night.skn"):
            yield path.parent, path.read_bytes().decode("latin-1")

    def path(self, folder, *values):
        return folder.joinpath(*"".join(values).strip("\\").split("\\"))

    def test_text_fits_the_reader(self):
        for _, text in self.skins():
            self.assertLessEqual(len(text), MAX_CHARACTERS)
            self.assertTrue(text.endswith("\r\n*"))
            self.assertNotIn("<", text)
            self.assertEqual(text.count("\n"), text.count("\r\n"))

    def test_every_key_is_found_once(self):
        tables = (COLOURS, {s: " ".join(keys) for s, keys in IMAGES.items()}, OTHERS)
        for folder, text in self.skins():
            for name, keys in ((name, keys.split()) for table in tables for name, keys in table.items()):
                for key in keys:
                    self.assertEqual(section_of(text, name).count(key + "@"), 1, f"{folder}: [{name}] {key}")

    def test_colours_are_numbers(self):
        for folder, text in self.skins():
            for name, keys in COLOURS.items():
                for key in keys.split():
                    value = value_of(section_of(text, name), key)
                    self.assertTrue(value.isdecimal() and int(value) <= 0xFFFFFF, f"{folder}: [{name}] {key}@{value}")

    def test_pictures_exist_and_are_small(self):
        for folder, text in self.skins():
            layouts = {key: value_of(section_of(text, "Common Folders"), key) for key in "PLS"}
            common = value_of(section_of(text, "General"), "IF")
            wanted = [self.path(folder, common)]
            wanted += [self.path(folder, layouts[layout], common[common.rindex("\\"):]) for layout in "PLS"]
            wanted += [self.path(folder, layouts[layout], value_of(section_of(text, name), key))
                       for name, keys in IMAGES.items() for key, places in keys.items() for layout in places]
            wanted.append(self.path(folder, value_of(section_of(text, "Map"), "MI")))
            for path in wanted:
                self.assertTrue(path.is_file(), path)
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

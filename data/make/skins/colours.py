"""The two skins' settings: every section and key in file order, and which text stands on what.

A colour is written RRGGBB here and as red + 256 * green + 65536 * blue in the file. Other values are copied as they stand.
"""

LAYOUTS = {"Portrait": (720, 1280), "Landscape": (1280, 800), "Square": (900, 900)}

DEFAULT = {
    "Description": {"N": "Default"},
    "Common Folders": {"P": r"\Portrait", "L": r"\Landscape", "S": r"\Square"},
    "General": {"TBC": "E8F0F6", "PC": "FFFFFF", "PTC": "14293D", "IF": r"\Portrait\common.jpg"},
    "Clocks": {"BP": r"\clocks.jpg", "BL": r"\clocks.jpg", "BS": r"\clocks.jpg",
               "CMDC": "0F2A44", "CMD": "27425B", "CMCN": "0B3F70", "CMSC": "A52A14", "CMAC": "14293D",
               "CODC": "14293D", "COD": "27425B", "COCN": "0B3F70", "COAC": "27425B"},
    "Weather": {"BP": r"\weather.jpg", "BL": r"\weather.jpg", "BS": r"\weather.jpg", "WICOF": "default",
                "CBBC": "FFFFFF", "CBTC": "14293D", "FBBC": "EEF5FB", "FBTC": "14293D",
                "SATC": "3A536A", "DAYSC": "0B4A82", "CNSC": "0F2A44", "MOREC": "0B4F8A"},
    "Map": {"BP": r"\map_back.jpg", "BL": r"\map_back.jpg", "BS": r"\map_back.jpg", "MI": r"\map.jpg",
            "CNC": "0F2A44", "DCC": "14293D", "ACC": "27425B", "DC": "27425B", "DLC": "0B4A5E",
            "RSTBC": "1C5A7D", "RSTTC": "FFFFFF", "RSIBC": "FFFFFF", "RSITC": "14293D", "SHADCLR": "7F7F7F"},
    "Currency": {"SumC": "0B3F70", "STC": "14293D", "PanC": "FFFFFF", "PCEC": "F3F8FC", "PBC": "D6E5F0", "UPDC": "44586A",
                 "BKC": "E6EDF1"},
    "Tools": {"BC": r"\convert.jpg", "PCC": "FFFFFF", "PCTC": "14293D", "PBCC": "CFE8DC", "TLC": "1D4A3C",
              "BD": r"\dial.jpg", "PCD": "FFFFFF", "PCTD": "1B1F4B",
              "BS": r"\cloths.jpg", "PCS": "FFFFFF", "PBCS": "F2D9DC", "TC1S": "14293D", "TC2S": "6E2A40", "TTCS": "551B31",
              "BP": r"\pack.jpg", "PCP": "FFFFFF", "PBCP": "F3DFB4"},
}

NIGHT = {
    "Description": {"N": "Night"},
    "Common Folders": DEFAULT["Common Folders"],
    "General": {"TBC": "0C1526", "PC": "18243C", "PTC": "E8EFF8", "IF": r"\Portrait\common.jpg"},
    "Clocks": DEFAULT["Clocks"] | {"CMDC": "FFFFFF", "CMD": "D6E0F0", "CMCN": "FFD9A8", "CMSC": "FF9D6B", "CMAC": "F2F6FC",
                                   "CODC": "F2F6FC", "COD": "D6E0F0", "COCN": "FFD9A8", "COAC": "DCE6F4"},
    "Weather": DEFAULT["Weather"] | {"CBBC": "18284B", "CBTC": "F2F6FC", "FBBC": "14213F", "FBTC": "E8EFF8",
                                     "SATC": "DDE6F4", "DAYSC": "D6E7FF", "CNSC": "FFE9CC", "MOREC": "D6E7FF"},
    "Map": DEFAULT["Map"] | {"MI": r"\map.png", "CNC": "FFE0B8", "DCC": "FFFFFF", "ACC": "E2ECF6", "DC": "DCE9F1",
                             "DLC": "CDEFF5", "RSTBC": "1D566B", "RSTTC": "FFFFFF", "RSIBC": "0C2736", "RSITC": "E4F1F6",
                             "SHADCLR": "1F3F3F"},
    "Currency": {"SumC": "FFDDB0", "STC": "E8EFF8", "PanC": "18243C", "PCEC": "0E1728", "PBC": "2B4570", "UPDC": "B4C4DA",
                 "BKC": "0F1829"},
    "Tools": DEFAULT["Tools"] | {"PCC": "10292E", "PCTC": "E6F4F1", "PBCC": "1F5552", "TLC": "BDE8DD",
                                 "PCD": "1A1D42", "PCTD": "EBECFB",
                                 "PCS": "251D33", "PBCS": "4A3560", "TC1S": "F3EDF8", "TC2S": "E5C4EA", "TTCS": "FFD9A8",
                                 "PCP": "24222C", "PBCP": "54432F"},
}

# (section, text key, grounds): a ground is a picture, or "Section/key" for a plain colour. Text needs 4.5 to 1.
TEXTS = [
    ("General", "PTC", ["General/TBC", "General/PC", "common", "Tools/PCP", "Tools/PBCP", "pack"]),
    *(("Clocks", key, ["clocks", "General/PC"]) for key in ("CMDC", "CMD", "CMCN", "CMAC", "CODC", "COD", "COCN", "COAC")),
    ("Weather", "CBTC", ["Weather/CBBC"]),
    ("Weather", "FBTC", ["Weather/FBBC"]),
    *(("Weather", key, ["weather", "Weather/CBBC", "Weather/FBBC"]) for key in ("SATC", "DAYSC", "CNSC", "MOREC")),
    *(("Map", key, ["map_back", "Map/RSIBC"]) for key in ("CNC", "DCC", "ACC", "DC", "DLC")),
    ("Map", "RSTTC", ["Map/RSTBC"]),
    ("Map", "RSITC", ["Map/RSIBC"]),
    ("Currency", "SumC", ["Currency/PCEC", "Currency/PanC"]),
    ("Currency", "STC", ["Currency/PanC", "Currency/BKC", "Currency/PBC", "Currency/PCEC"]),
    ("Currency", "UPDC", ["Currency/PanC", "Currency/BKC"]),
    ("Tools", "PCTC", ["Tools/PCC", "Tools/PBCC", "convert"]),
    ("Tools", "TLC", ["Tools/PCC", "convert"]),
    ("Tools", "PCTD", ["Tools/PCD", "dial"]),
    *(("Tools", key, ["Tools/PCS", "Tools/PBCS", "cloths"]) for key in ("TC1S", "TC2S", "TTCS")),
]
# A hand is a shape, not text: 3 to 1 is enough.
MARKS = [("Clocks", "CMSC", ["clocks", "General/PC"])]

"""Colours of the background pictures of both skins; every colour is an RGB triple 0..255."""
import collections

Palette = collections.namedtuple("Palette", "sky light glow layers line accent line_strength layer_strength disc stars")


def _rgb(*codes):
    out = [tuple(int(code[k:k + 2], 16) for k in (0, 2, 4)) for code in codes]
    return out if len(out) > 1 else out[0]


def _day(sky, light, layers, line, accent, line_strength=.28):
    return Palette(_rgb(*sky.split()), _rgb(light), 1.0, _rgb(*layers.split()), _rgb(line), _rgb(accent), line_strength, .55, .75, None)


def _night(sky, light, layers, line, accent, line_strength=.26):
    return Palette(_rgb(*sky.split()), _rgb(light), .5, _rgb(*layers.split()), _rgb(line), _rgb(accent), line_strength, .62, .22,
                   _rgb("E6EEFF"))


DAY = {
    "clocks": _day("CFE2F3 E9F1F6 FBEFE2 F9DFC9", "FFF6E0", "C3D8E8 A9C8DF 8FB6D3", "6C93B5", "DC9A82"),
    "map_back": _day("E6F3F8 D3E8F1 C2DEEA", "F4FBFD", "A9D2E0 9AC8DA 8CBED2", "5C97AD", "DC9A82"),
    "weather": _day("BFDCF4 D6E9F8 EDF5FB", "FFF3CF", "F6FBFE DDEBF7 C6DCEF", "DDA94A", "DC9A82", .40),
    "common": _day("F4F1E8 EAF0F1 D9E7ED", "FFFBF0", "C9DDE4 B7D1DC A6C6D3", "8AA6B5", "DC9A82"),
    "convert": _day("EDF6F0 DCEEE6 CFE6DE", "FBFFF8", "C3E0D5 B1D6C8 A0CCBC", "6BA392", "DC9A82"),
    "dial": _day("EFF0FA E2E6F6 D5DBF1", "FBFAFF", "CCD4EE BDC8E9 AEBBE3", "7F8FC4", "DC9A82"),
    "cloths": _day("FBF1EE F6E5E3 F0DADB", "FFFAF6", "ECCFD2 E4BFC5 DBAFB8", "BC8791", "DC9A82"),
    "pack": _day("FBF5E6 F7EAD2 F1DDBB", "FFFDF0", "E9D0A4 E0BF8C D5AE76", "A98550", "DC9A82"),
}

NIGHT = {
    "clocks": _night("080F24 111D3B 22315A 343F6C", "6B80B4", "1B2A52 142144 0C1733", "7F9CD6", "9C6C48"),
    "map_back": _night("061320 0A2133 0E2D40", "2A7288", "174A5C 123D4E 0E3140", "5FA8BE", "9C6C48"),
    "weather": _night("0B142C 142345 1F3159", "62749F", "2D4577 213660 17284C", "8C9FCB", "9C6C48"),
    "common": _night("0C1322 142036 1C2B46", "44699E", "2A426C 20355A 172848", "7695C4", "9C6C48"),
    "convert": _night("07181C 0C242A 123038", "2F7474", "1A5052 144448 10393D", "62AFAA", "9C6C48"),
    "dial": _night("0F112A 181B3D 212550", "5456A8", "2F3476 282C66 212554", "8C92E0", "9C6C48"),
    "cloths": _night("171222 221B30 2F243F", "7A5590", "4A3560 3D2C52 302342", "B595CC", "9C6C48"),
    "pack": _night("11141F 1A1D2B 272733", "7A6048", "4E4034 40352F 332C2A", "C7A273", "9C6C48"),
}

#!/usr/bin/env python3
"""Writes a language that nobody speaks, to see which texts do not come from a module and which do not fit.

usage: pseudo_language.py English.rc Pseudo.rc
Every text stands in brackets and is half as long again; placeholders, mnemonics, line ends and outer blanks stay.
Of a list with ";" each item is treated alone. Texts of up to three characters get the brackets alone, as their short
forms in other languages are about that long.
"""
import pathlib
import re
import sys

QUOTED = r'"((?:[^"]|"")*)"'
TEXT = re.compile(rf'^(\s+(?:kText\w+|CAPTION|POPUP|MENUITEM|[LCR]TEXT|(?:DEF)?PUSHBUTTON|AUTO\w+|GROUPBOX)\s+|CAPTION\s+|\s+CONTROL\s+){QUOTED}')
OUTER = re.compile(r'^((?: |\\n)*)(.*?)((?: |\\n)*)$')
PAD = "~~~~~~ "


def lengthened(text):
    if len(text) <= 3:
        return text
    pad = (PAD * len(text))[: (len(text) + 1) // 2].strip()
    return text + (" " if " " in text else "") + (pad if " " in text else pad.replace(" ", ""))


def spoken(text):
    before, core, after = OUTER.match(text).groups()
    return f"{before}[{lengthened(core)}]{after}" if core else text


def translated(line):
    def one(match):
        start, text = match.groups()
        items = text.split(";") if re.match(r"\s+kText\w+Items\s", start) else [text]
        return f'{start}"{";".join(spoken(item) for item in items)}"'

    return TEXT.sub(one, line)


def main(source, target):
    lines = pathlib.Path(source).read_text(encoding="utf-8").split("\n")
    pathlib.Path(target).write_text("\n".join(translated(line) for line in lines), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])

#!/usr/bin/env python3
"""Makes currs.lst and currs.date from a daily table of exchange rates; README.md beside this file says how."""

import argparse
import datetime
import json
import pathlib
import sys
import unicodedata
from decimal import Decimal

TABLES = pathlib.Path(__file__).resolve().parent / "tables"
# The program refreshes the first 189 entries of the list: fewer would be too few, one more would grow stale.
ENTRIES = 189
SIGNIFICANT_DIGITS = 8


def read_table(name):
    """Returns {first column: second column} of tables/NAME, a tab-separated text with '#' comment lines."""
    rows = {}
    for number, line in enumerate((TABLES / name).read_text(encoding="utf-8").splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        cells = line.split("\t")
        if len(cells) != 2 or not all(cells) or cells[0] in rows:
            raise ValueError(f"{name}:{number}: expected two columns and a new code: {line!r}")
        rows[cells[0]] = cells[1]
    return rows


def read_rates(folder):
    """Returns (date, {code: units per US dollar}) of currencies/usd.json; no rate passes through a binary float."""
    text = (folder / "currencies" / "usd.json").read_text(encoding="utf-8")
    table = json.loads(text, parse_float=Decimal, parse_int=Decimal)
    rates = {code.upper(): rate for code, rate in table["usd"].items()}
    return datetime.date.fromisoformat(table["date"]), rates | {"USD": Decimal(1)}


def read_names(folder):
    """Returns {code: English name}: the source's names with our table on top."""
    names = json.loads((folder / "currencies.json").read_text(encoding="utf-8"))
    return {code.upper(): name for code, name in names.items()} | read_table("names.tsv")


def to_latin1(text):
    """TEXT in ISO 8859-1; a letter outside it loses its marks."""
    plain = unicodedata.normalize("NFC", text.translate(str.maketrans("’ʻʼ", "'''")))
    pieces = [c if ord(c) < 256 else unicodedata.normalize("NFKD", c) for c in plain]
    return "".join(c for c in "".join(pieces) if ord(c) < 256).strip()


def rate_text(rate):
    """Plain decimal text of eight significant digits, never with an exponent."""
    rounded = Decimal(f"{rate:.{SIGNIFICANT_DIGITS - 1}e}")
    text = f"{rounded:f}"
    return text.rstrip("0").rstrip(".") if "." in text else text


def entry(code, rates, names):
    """code_name_rate#, checked so that no part can end another."""
    if code not in rates or code not in names:
        raise ValueError(f"{code} has no rate or no name in the source")
    name, rate = to_latin1(names[code]), rate_text(rates[code])
    if not name or set("_#\n") & set(name) or rates[code] <= 0:
        raise ValueError(f"{code}: cannot write name {name!r}, rate {rate!r}")
    return f"{code}_{name}_{rate}#"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--rates", type=pathlib.Path, required=True, help="the package's v1 folder")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="folder for currs.lst and currs.date")
    options = parser.parse_args()
    date, rates = read_rates(options.rates)
    names = read_names(options.rates)
    entries = [entry(code, rates, names) for code in sorted(read_table("codes.tsv"))]
    if len(entries) != ENTRIES:
        raise ValueError(f"codes.tsv gives {len(entries)} currencies, not {ENTRIES}")
    text = f"{len(entries)}\n" + "".join(entries)
    (options.out / "currs.lst").write_bytes(text.encode("latin-1"))
    (options.out / "currs.date").write_text(f"{date.isoformat()}\n", encoding="ascii")
    print(f"{len(entries)} currencies, rates of {date}")


if __name__ == "__main__":
    try:
        main()
    except (OSError, ValueError, KeyError) as error:
        sys.exit(f"make_currs.py: {error}")

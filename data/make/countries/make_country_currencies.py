#!/usr/bin/env python3
"""Writes src/currency/country_currencies.cpp: which currencies are used in which country.

usage: make_country_currencies.py COUNTRIES.json OUT.cpp
COUNTRIES.json is countries.min.json of the npm package countries-list (see README.md beside this script).
"""
import json
import pathlib
import sys

HEAD = """// Made by data/make/countries/make_country_currencies.py; do not edit.
#include "currency/country_currencies.h"

#include <iterator>

namespace rlx {{

namespace {{

constexpr CountryCurrency kRows[] = {{
"""

TAIL = """}};
static_assert(std::size(kRows) == {count});

}}  // namespace

std::span<const CountryCurrency> CountryCurrencies() {{
    return kRows;
}}

}}  // namespace rlx
"""


def rows_of(countries):
    for code in sorted(countries, key=lambda c: countries[c]["name"]):
        country = countries[code]
        for currency in country["currency"]:
            if len(currency) != 3 or not currency.isalpha() or '"' in country["name"]:
                raise SystemExit(f"{code}: cannot be written: {country['name']} {currency}")
            yield country["name"], currency


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    countries = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    rows = list(rows_of(countries))
    lines = "".join(f'    {{u"{name}", u"{currency}"}},\n' for name, currency in rows)
    text = HEAD.format() + lines + TAIL.format(count=len(rows))
    pathlib.Path(sys.argv[2]).write_text(text, encoding="utf-8")


main()

"""Reads the small hand-kept tables beside the generator: tab-separated text, '#' begins a comment line."""

from pathlib import Path

TABLES = Path(__file__).resolve().parent / "tables"


def read_table(name, columns):
    """Returns the rows of tables/NAME as tuples of exactly COLUMNS texts; a bad line is named in the error."""
    rows = []
    path = TABLES / name
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        row = tuple(line.split("\t"))
        if len(row) != columns or not all(row):
            raise ValueError(f"{path}:{number}: expected {columns} filled columns: {line!r}")
        if row in rows:
            raise ValueError(f"{path}:{number}: row is there twice: {line!r}")
        rows.append(row)
    return rows

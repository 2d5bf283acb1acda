"""Writes the two files that the program reads: the city list and the list of weather places."""

from latin_text import to_key


def decimal_degrees(value):
    """Four decimals (about ten metres) without trailing zeros."""
    text = f"{value:.4f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def city_line(place, rule):
    """zone;name;country;longitude;latitude and the six rule fields."""
    texts = [place.zone, place.name, place.country, decimal_degrees(place.longitude), decimal_degrees(place.latitude)]
    return ";".join(texts + [str(number) for number in rule.fields()])


def feed_name(place):
    """The stable ASCII name under which the feed knows a place."""
    return f"{to_key(place.name)}_{to_key(place.country)}"


def weather_line(place):
    return f"{place.name};{place.country};{feed_name(place)}"


def check_feed_names(places):
    """Two places with one feed name would show each other's weather."""
    owner = {}
    for place in places:
        other = owner.setdefault(feed_name(place), place)
        if other is not place:
            raise ValueError(f"{place.key} and {other.key} have the same feed name {feed_name(place)}")


def write_counted_lines(path, lines):
    """A count line, then the lines, each ended by a line feed, in ISO 8859-1."""
    text = "".join(f"{line}\n" for line in [len(lines), *lines])
    path.write_bytes(text.encode("latin-1"))

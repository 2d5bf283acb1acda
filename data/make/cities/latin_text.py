"""Names of the world in the characters that the data files can hold."""

import re
import unicodedata

# Letters that Unicode does not decompose, and punctuation outside ISO 8859-1.
BY_HAND = {
    "Æ": "AE", "Ð": "D", "Đ": "D", "đ": "d", "ı": "i", "Ł": "L", "ł": "l", "Œ": "OE", "œ": "oe",
    "ə": "a", "Ə": "A", "ħ": "h", "Ħ": "H", "ŋ": "n",
    "’": "'", "‘": "'", "ʼ": "'", "ʻ": "'", "ʿ": "'", "ʾ": "'", "–": "-", "—": "-",
}
# Letters of ISO 8859-1 without a plain form of their own.
TO_PLAIN = {"ß": "ss", "Ø": "O", "ø": "o", "æ": "ae", "ð": "d", "Þ": "Th", "þ": "th"}


def without_marks(text):
    """Drops accents and other combining marks."""
    return "".join(c for c in unicodedata.normalize("NFKD", text) if not unicodedata.combining(c))


def latin1_piece(char):
    """What stands for one character, the empty text where nothing can."""
    if ord(char) < 0x80 or 0xA1 <= ord(char) <= 0xFF:
        return char
    piece = BY_HAND.get(char) or without_marks(char)
    return piece if piece.isascii() else ""


def to_latin1(text, fallback=""):
    """Returns TEXT in printable ISO 8859-1, else FALLBACK treated alike, else the empty text."""
    pieces = [latin1_piece(char) for char in unicodedata.normalize("NFC", text)]
    if not all(pieces):
        return to_latin1(fallback) if fallback and fallback != text else ""
    return re.sub(r"\s+", " ", "".join(pieces)).strip()


def to_key(text):
    """Returns TEXT as lower-case ASCII letters and digits joined by single hyphens: "São Tomé" is "sao-tome"."""
    plain = "".join(TO_PLAIN.get(c) or BY_HAND.get(c) or c for c in text).replace("'", "").replace(".", "")
    return re.sub(r"[^a-z0-9]+", "-", without_marks(plain).lower()).strip("-")


def fits_a_field(text):
    """True where TEXT can stand in a field of the city list without ending it or looking like the end mark."""
    return bool(text) and text[0] != ">" and not re.search(r"[;:\n\r]", text)

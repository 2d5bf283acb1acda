#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text is UTF-16 inside the program (`std::u16string`) and bytes outside it. These are the only bridges.
/// All functions are pure, take any input and may be called from any thread.
namespace rlx {

/// Widens each byte to the UTF-16 unit of the same value (ISO 8859-1).
std::u16string Widen(std::string_view bytes);

/// The inverse of `Widen`; a unit above 255 becomes "?".
std::string Narrow(std::u16string_view text);

/// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// UTF-8 to UTF-16. Each byte that does not belong to a well-formed sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

/// True when `bytes` is well-formed UTF-8 (no overlong forms, no surrogates).
bool IsUtf8(std::string_view bytes);

/// Windows-1252 to UTF-16; the five bytes without a meaning keep their value.
std::u16string FromWindows1252(std::string_view bytes);

/// One piece for every stretch between delimiters; "a::b" gives "a", "", "b" and "" gives one empty piece.
std::vector<std::u16string> Split(std::u16string_view text, char16_t delimiter);

/// `text` without blanks, tabs and line ends at both ends.
std::u16string Trim(std::u16string_view text);

/// Case folded for comparing: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters become lower case.
std::u16string FoldCase(std::u16string_view text);

/// As `FoldCase`, and Latin letters lose their accents ("São" gives "sao", "Ø" gives "o", "ß" gives "ss").
std::u16string FoldForSearch(std::u16string_view text);

/// True when both are equal after `FoldCase`.
bool EqualIgnoringCase(std::u16string_view a, std::u16string_view b);

/// True when `text` begins with `prefix` after `FoldCase`.
bool BeginsIgnoringCase(std::u16string_view text, std::u16string_view prefix);

}  // namespace rlx

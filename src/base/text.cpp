#include "base/text.h"

#include <array>

namespace rlx {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& bytes, char32_t point) {
    const auto put = [&bytes](char32_t value) { bytes.push_back(static_cast<char>(value)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6));
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | (point >> 18));
        put(0x80 | ((point >> 12) & 0x3F));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

struct Decoded {
    char32_t point = 0;
    std::size_t length = 0;  ///< 0: no well-formed sequence stands here
};

Decoded DecodeUtf8(std::string_view bytes) {
    const auto at = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char first = at(0);
    if (first < 0x80) return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return {};
    char32_t point = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80) return {};
        point = (point << 6) | (at(i) & 0x3F);
    }
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    if (point < kLeast[length] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) return {};
    return {point, length};
}

void AppendUtf16(std::u16string& text, char32_t point) {
    if (point < 0x10000) {
        text.push_back(static_cast<char16_t>(point));
        return;
    }
    text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
}

// The meanings of 0x80 to 0x9F in Windows-1252; the five unused ones keep their value.
constexpr std::array<char16_t, 32> kWindows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsSpace(char16_t unit) {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

/// In Latin Extended-A most pairs are (even upper, odd lower); two stretches are the other way round.
char16_t LowerLatinExtended(char16_t unit) {
    if (unit == 0x130) return u'i';
    if (unit == 0x178) return 0xFF;
    const bool oddUpper = (unit >= 0x139 && unit <= 0x148) || (unit >= 0x179 && unit <= 0x17E);
    const bool isUpper = oddUpper ? unit % 2 == 1 : unit % 2 == 0;
    return isUpper && unit != 0x138 && unit != 0x17F ? static_cast<char16_t>(unit + 1) : unit;
}

char16_t Lower(char16_t unit) {
    const auto shifted = [unit](int by) { return static_cast<char16_t>(unit + by); };
    if (unit >= u'A' && unit <= u'Z') return shifted(32);
    if (unit < 0xC0) return unit;
    if (unit <= 0xDE) return unit == 0xD7 ? unit : shifted(32);
    if (unit >= 0x100 && unit <= 0x17F) return LowerLatinExtended(unit);
    if (unit >= 0x391 && unit <= 0x3A9) return shifted(32);
    if (unit >= 0x410 && unit <= 0x42F) return shifted(32);
    if (unit >= 0x400 && unit <= 0x40F) return shifted(80);
    return unit;
}

// The plain letters of U+00E0 to U+00FF, then of U+0100 to U+017F. "." stands for "more than one letter, or none".
constexpr std::u16string_view kPlainLatin1 = u"aaaaaa.ceeeeiiiidnooooo.ouuuuy.y";
constexpr std::u16string_view kPlainExtended =
    u"aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii..jjkkklllllllllln"
    u"nnnnnnnnoooooo..rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(kPlainLatin1.size() == 32 && kPlainExtended.size() == 128);

void AppendPlain(std::u16string& text, char16_t lower) {
    switch (lower) {
        case 0xDF:
            text += u"ss";
            return;
        case 0xE6:
            text += u"ae";
            return;
        case 0xFE:
            text += u"th";
            return;
        case 0x133:
            text += u"ij";
            return;
        case 0x153:
            text += u"oe";
            return;
        default:
            break;
    }
    char16_t plain = lower;
    if (lower >= 0xE0 && lower <= 0xFF) plain = kPlainLatin1[lower - 0xE0U];
    if (lower >= 0x100 && lower <= 0x17F) plain = kPlainExtended[lower - 0x100U];
    const bool combining = lower >= 0x300 && lower <= 0x36F;
    if (!combining) text.push_back(plain == u'.' ? lower : plain);
}

}  // namespace

std::u16string Widen(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text.push_back(static_cast<unsigned char>(byte));
    return text;
}

std::string Narrow(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text)
        bytes.push_back(unit > 0xFF ? '?' : static_cast<char>(unit));
    return bytes;
}

std::string ToUtf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            const char32_t high = unit - 0xD800U;
            AppendUtf8(bytes, 0x10000 + (high << 10) + (text[++i] - 0xDC00U));
        } else {
            AppendUtf8(bytes, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit);
        }
    }
    return bytes;
}

std::u16string FromUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Decoded decoded = DecodeUtf8(bytes);
        AppendUtf16(text, decoded.length == 0 ? kReplacement : decoded.point);
        bytes.remove_prefix(decoded.length == 0 ? 1 : decoded.length);
    }
    return text;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const Decoded decoded = DecodeUtf8(bytes);
        if (decoded.length == 0) return false;
        bytes.remove_prefix(decoded.length);
    }
    return true;
}

std::u16string FromWindows1252(std::string_view bytes) {
    std::u16string text = Widen(bytes);
    for (char16_t& unit : text) {
        if (unit >= 0x80 && unit <= 0x9F) unit = kWindows1252[unit - 0x80U];
    }
    return text;
}

std::vector<std::u16string> Split(std::u16string_view text, char16_t delimiter) {
    std::vector<std::u16string> pieces;
    for (std::size_t end = text.find(delimiter); end != std::u16string_view::npos; end = text.find(delimiter)) {
        pieces.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.emplace_back(text);
    return pieces;
}

std::u16string Trim(std::u16string_view text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return std::u16string(text);
}

std::u16string FoldCase(std::u16string_view text) {
    std::u16string folded(text);
    for (char16_t& unit : folded)
        unit = Lower(unit);
    return folded;
}

std::u16string FoldForSearch(std::u16string_view text) {
    std::u16string folded;
    folded.reserve(text.size());
    for (const char16_t unit : text)
        AppendPlain(folded, Lower(unit));
    return folded;
}

bool EqualIgnoringCase(std::u16string_view a, std::u16string_view b) {
    return FoldCase(a) == FoldCase(b);
}

bool BeginsIgnoringCase(std::u16string_view text, std::u16string_view prefix) {
    return text.size() >= prefix.size() && EqualIgnoringCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace rlx

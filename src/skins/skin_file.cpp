#include "skins/skin_file.h"

#include <limits>

#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"

namespace rlx {
namespace {

constexpr std::int64_t kMostColour = std::numeric_limits<std::uint32_t>::max();

}  // namespace

std::u16string ReadSkinText(IByteStream& stream) {
    CByteReader reader(stream);
    return ReadToken(reader, '<');
}

std::optional<std::u16string> ReadSkinText(IFileSystem& files, const std::filesystem::path& file) {
    const auto stream = files.OpenRead(file);
    if (!stream) return std::nullopt;
    return ReadSkinText(*stream);
}

std::u16string SectionText(std::u16string_view text, std::u16string_view section) {
    const auto start = text.find(u"[" + std::u16string(section) + u"]");
    if (start == std::u16string_view::npos) return std::u16string(kSkinMissing);
    const auto body = text.substr(start);
    const auto end = body.find(u'>');
    return std::u16string(body.substr(0, end != std::u16string_view::npos ? end : body.find(u'*')));
}

std::u16string KeyValue(std::u16string_view section, std::u16string_view key) {
    const auto mark = std::u16string(key) + u"@";
    const auto start = section.find(mark);
    if (start == std::u16string_view::npos) return std::u16string(kSkinMissing);
    auto value = section.substr(start + mark.size());
    const auto end = value.find(u'\n');
    if (end == std::u16string_view::npos) return std::u16string(value);
    return std::u16string(value.substr(0, end > 0 ? end - 1 : 0));
}

std::u16string DecodedSkinValue(std::u16string_view value) {
    for (const char16_t unit : value) {
        if (unit > 0xFF) return std::u16string(value);
    }
    const std::string bytes = Narrow(value);
    return IsUtf8(bytes) ? FromUtf8(bytes) : std::u16string(value);
}

bool IsSkinColour(std::u16string_view value) {
    const bool digits = value.find_first_not_of(u"0123456789") == std::u16string_view::npos;
    return digits && ParseWholeInteger(value, 0, kMostColour).has_value();
}

std::optional<std::uint32_t> ParseSkinColour(std::u16string_view value) {
    const auto text = Trim(value);
    const bool negative = text.starts_with(u'-');
    auto digits = std::u16string_view(text).substr(negative || text.starts_with(u'+') ? 1 : 0);
    if (digits.empty() || digits[0] < u'0' || digits[0] > u'9') return std::nullopt;
    std::int64_t number = 0;
    for (const char16_t unit : digits) {
        if (unit < u'0' || unit > u'9') break;
        number = number * 10 + (unit - u'0');
        if (number > kMostColour) number = kMostColour;
    }
    return static_cast<std::uint32_t>(negative ? -number : number);
}

}  // namespace rlx

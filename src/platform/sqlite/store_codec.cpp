#include "platform/sqlite/store_codec.h"

#include <cstdint>

namespace rlx {

namespace {

constexpr std::size_t kHeadSize = 8;

void AppendNumber(std::string& bytes, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>((value >> shift) & 0xFF));
}

std::uint32_t NumberAt(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = at; i < at + 4; ++i)
        value = (value << 8) | static_cast<unsigned char>(bytes[i]);
    return value;
}

void AppendText(std::string& bytes, std::u16string_view text) {
    std::size_t at = bytes.size();
    bytes.resize(at + 2 * text.size());
    for (const char16_t unit : text) {
        bytes[at++] = static_cast<char>(unit >> 8);
        bytes[at++] = static_cast<char>(unit & 0xFF);
    }
}

struct EncodedPart {
    PropertyId id = 0;
    std::string_view text;
};

/// Takes the first property off `bytes`; nothing when what stands there is cut short.
std::optional<EncodedPart> TakePart(std::string_view& bytes) {
    if (bytes.size() < kHeadSize) return std::nullopt;
    const std::size_t size = std::size_t{2} * NumberAt(bytes, 4);
    if (bytes.size() - kHeadSize < size) return std::nullopt;
    const EncodedPart part{NumberAt(bytes, 0), bytes.substr(kHeadSize, size)};
    bytes.remove_prefix(kHeadSize + size);
    return part;
}

}  // namespace

std::string EncodeText(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    AppendText(bytes, text);
    return bytes;
}

std::u16string DecodeText(std::string_view bytes) {
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned high = static_cast<unsigned char>(bytes[2 * i]);
        text[i] = static_cast<char16_t>((high << 8) | static_cast<unsigned char>(bytes[2 * i + 1]));
    }
    return text;
}

std::string EncodeRecord(const Record& record) {
    std::size_t size = 0;
    for (const Property& property : record)
        size += kHeadSize + 2 * property.text.size();
    std::string bytes;
    bytes.reserve(size);
    for (const Property& property : record) {
        AppendNumber(bytes, property.id);
        AppendNumber(bytes, static_cast<std::uint32_t>(property.text.size()));
        AppendText(bytes, property.text);
    }
    return bytes;
}

std::optional<Record> DecodeRecord(std::string_view bytes) {
    Record record;
    while (!bytes.empty()) {
        const auto part = TakePart(bytes);
        if (!part) return std::nullopt;
        record.push_back({part->id, DecodeText(part->text)});
    }
    return record;
}

std::string_view EncodedProperty(std::string_view bytes, PropertyId id) {
    while (const auto part = TakePart(bytes)) {
        if (part->id == id) return part->text;
    }
    return {};
}

std::string EncodeSortOrders(const std::vector<PropertyId>& sortOrders) {
    std::string bytes;
    for (const PropertyId property : sortOrders)
        AppendNumber(bytes, property);
    return bytes;
}

std::vector<PropertyId> DecodeSortOrders(std::string_view bytes) {
    std::vector<PropertyId> sortOrders;
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4)
        sortOrders.push_back(NumberAt(bytes, at));
    return sortOrders;
}

}  // namespace rlx

#include "platform/registry_value.h"

namespace rlx {

namespace {

constexpr std::size_t kDwordSize = 4;

}  // namespace

RegistryValue DwordValue(std::uint32_t number) {
    RegistryValue value{RegistryType::kDword, {}};
    for (std::size_t i = 0; i < kDwordSize; ++i)
        value.bytes.push_back(static_cast<char>((number >> (8 * i)) & 0xFF));
    return value;
}

RegistryValue TextValue(std::u16string_view text) {
    RegistryValue value{RegistryType::kString, {}};
    value.bytes.reserve(2 * text.size());
    for (const char16_t unit : text) {
        value.bytes.push_back(static_cast<char>(unit & 0xFF));
        value.bytes.push_back(static_cast<char>(unit >> 8));
    }
    return value;
}

std::optional<std::uint32_t> DwordOf(const RegistryValue& value) {
    if (value.type != RegistryType::kDword || value.bytes.size() != kDwordSize) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = kDwordSize; i-- > 0;)
        number = (number << 8) | static_cast<unsigned char>(value.bytes[i]);
    return number;
}

std::optional<std::u16string> TextOf(const RegistryValue& value) {
    if (value.type != RegistryType::kString) return std::nullopt;
    std::u16string text;
    text.reserve(value.bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < value.bytes.size(); i += 2) {
        const unsigned high = static_cast<unsigned char>(value.bytes[i + 1]);
        text.push_back(static_cast<char16_t>((high << 8) | static_cast<unsigned char>(value.bytes[i])));
    }
    return text;
}

}  // namespace rlx

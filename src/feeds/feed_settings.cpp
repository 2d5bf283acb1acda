#include "feeds/feed_settings.h"

namespace rlx {

std::u16string CFeedSettings::Text(RegistryRoot root, std::u16string_view key, std::u16string_view name) const {
    const std::optional<RegistryValue> value = m_registry.Query(root, key, name);
    if (!value || value->type != RegistryType::kString) return {};
    std::u16string text;
    for (std::size_t i = 0; i + 1 < value->bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(value->bytes[i]);
        const auto high = static_cast<unsigned char>(value->bytes[i + 1]);
        text.push_back(static_cast<char16_t>(low | (high << 8)));
    }
    return text;
}

void CFeedSettings::SetText(std::u16string_view key, std::u16string_view name, std::u16string_view text) {
    RegistryValue value{RegistryType::kString, {}};
    for (const char16_t unit : text) {
        value.bytes.push_back(static_cast<char>(unit & 0xFF));
        value.bytes.push_back(static_cast<char>(unit >> 8));
    }
    m_registry.Set(RegistryRoot::kLocalMachine, key, name, value);
}

std::optional<std::uint32_t> CFeedSettings::Number(std::u16string_view key, std::u16string_view name) const {
    const std::optional<RegistryValue> value = m_registry.Query(RegistryRoot::kLocalMachine, key, name);
    if (!value || value->type != RegistryType::kDword || value->bytes.size() != 4) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = (number << 8) | static_cast<unsigned char>(value->bytes[i]);
    return number;
}

void CFeedSettings::SetNumber(std::u16string_view key, std::u16string_view name, std::uint32_t number) {
    RegistryValue value{RegistryType::kDword, {}};
    for (int shift = 0; shift < 32; shift += 8)
        value.bytes.push_back(static_cast<char>((number >> shift) & 0xFF));
    m_registry.Set(RegistryRoot::kLocalMachine, key, name, value);
}

}  // namespace rlx

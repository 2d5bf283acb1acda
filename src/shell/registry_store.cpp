#include "shell/registry_store.h"

#include <algorithm>
#include <optional>

#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::size_t kDwordSize = 4;

std::uint32_t DwordOf(std::string_view bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = kDwordSize; i-- > 0;)
        value = (value << 8) | static_cast<unsigned char>(bytes[i]);
    return value;
}

std::string BytesOf(std::uint32_t value) {
    std::string bytes;
    for (std::size_t i = 0; i < kDwordSize; ++i)
        bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
    return bytes;
}

std::u16string TextOf(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned high = static_cast<unsigned char>(bytes[i + 1]);
        text.push_back(static_cast<char16_t>((high << 8) | static_cast<unsigned char>(bytes[i])));
    }
    return text;
}

std::string BytesOf(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

}  // namespace

CRegistryStore::CRegistryStore(IRegistry& registry) : m_registry(registry) {}

std::uint32_t CRegistryStore::ReadDword(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    m_status = ReadStatus::kKeyMissing;
    if (!m_registry.KeyExists(root, key)) return 0;
    m_status = ReadStatus::kValueMissing;
    if (!FindName(root, key, name)) return 0;
    const auto value = m_registry.Query(root, key, name);
    if (!value || value->type != RegistryType::kDword || value->bytes.size() != kDwordSize) return 0;
    m_status = ReadStatus::kRead;
    return DwordOf(value->bytes);
}

bool CRegistryStore::FindName(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    if (name.size() >= kNameBuffer) return false;
    const auto names = m_registry.ValueNames(root, key);
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::u16string CRegistryStore::ReadString(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    m_status = ReadStatus::kKeyMissing;
    if (!m_registry.KeyExists(root, key)) return {};
    m_status = ReadStatus::kValueMissing;
    const auto value = m_registry.Query(root, key, name);
    if (!value || value->type != RegistryType::kString) return {};
    m_status = ReadStatus::kRead;
    return TextOf(value->bytes);
}

bool CRegistryStore::WriteDword(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                                std::uint32_t value) {
    return m_registry.Set(root, key, name, {RegistryType::kDword, BytesOf(value)});
}

bool CRegistryStore::WriteString(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                                 std::u16string_view text) {
    return m_registry.Set(root, key, name, {RegistryType::kString, BytesOf(text)});
}

bool CRegistryStore::WriteBinary(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                                 const void* bytes, std::size_t count) {
    std::string copy;
    if (count > 0) copy.assign(static_cast<const char*>(bytes), count);
    return m_registry.Set(root, key, name, {RegistryType::kBinary, std::move(copy)});
}

std::uint32_t CRegistryStore::ReadDwordOr(std::u16string_view key, std::u16string_view name, std::uint32_t fallback) {
    const DwordSetting setting{name, fallback};
    return ReadDwordsOr(key, {&setting, 1}).front();
}

std::vector<std::uint32_t> CRegistryStore::ReadDwordsOr(std::u16string_view key,
                                                        std::span<const DwordSetting> settings) {
    const RegistryRoot root = RootOf(key);
    std::vector<std::uint32_t> values;
    std::vector<const DwordSetting*> unwritten;
    for (const DwordSetting& setting : settings) {
        const std::uint32_t value = ReadDword(root, key, setting.name);
        values.push_back(m_status == ReadStatus::kRead ? value : setting.fallback);
        const bool write =
            m_status == ReadStatus::kKeyMissing || (m_status == ReadStatus::kValueMissing && setting.writeWhenMissing);
        if (write) unwritten.push_back(&setting);
    }
    for (const DwordSetting* setting : unwritten)
        WriteDword(root, key, setting->name, setting->fallback);
    return values;
}

}  // namespace rlx

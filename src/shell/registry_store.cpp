#include "shell/registry_store.h"

#include <algorithm>
#include <optional>

#include "platform/registry_value.h"
#include "shell/setting_names.h"

namespace rlx {

CRegistryStore::CRegistryStore(IRegistry& registry) : m_registry(registry) {}

std::uint32_t CRegistryStore::ReadDword(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    m_status = ReadStatus::kKeyMissing;
    if (!m_registry.KeyExists(root, key)) return 0;
    m_status = ReadStatus::kValueMissing;
    if (!FindName(root, key, name)) return 0;
    const auto value = m_registry.Query(root, key, name);
    const auto number = value ? DwordOf(*value) : std::nullopt;
    if (!number) return 0;
    m_status = ReadStatus::kRead;
    return *number;
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
    auto text = value ? TextOf(*value) : std::nullopt;
    if (!text) return {};
    m_status = ReadStatus::kRead;
    return *std::move(text);
}

bool CRegistryStore::WriteDword(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                                std::uint32_t value) {
    return m_registry.Set(root, key, name, DwordValue(value));
}

bool CRegistryStore::WriteString(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                                 std::u16string_view text) {
    return m_registry.Set(root, key, name, TextValue(text));
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

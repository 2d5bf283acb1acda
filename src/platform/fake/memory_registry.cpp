#include "platform/fake/memory_registry.h"

#include <algorithm>

namespace rlx {

CMemoryRegistry::NamedValue* CMemoryRegistry::Find(RegistryRoot root, std::u16string_view key,
                                                   std::u16string_view name) {
    const auto found = m_keys.find({root, std::u16string(key)});
    if (found == m_keys.end()) return nullptr;
    auto& values = found->second;
    const auto value = std::find_if(values.begin(), values.end(), [name](const auto& v) { return v.name == name; });
    return value == values.end() ? nullptr : &*value;
}

bool CMemoryRegistry::KeyExists(RegistryRoot root, std::u16string_view key) {
    return key.empty() || m_keys.count({root, std::u16string(key)}) != 0;
}

std::vector<std::u16string> CMemoryRegistry::ValueNames(RegistryRoot root, std::u16string_view key) {
    std::vector<std::u16string> names;
    const auto found = m_keys.find({root, std::u16string(key)});
    if (found == m_keys.end()) return names;
    for (const NamedValue& value : found->second)
        names.push_back(value.name);
    return names;
}

std::optional<RegistryValue> CMemoryRegistry::Query(RegistryRoot root, std::u16string_view key,
                                                    std::u16string_view name) {
    const NamedValue* found = Find(root, key, name);
    if (found == nullptr) return std::nullopt;
    return found->value;
}

bool CMemoryRegistry::Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                          const RegistryValue& value) {
    if (key.size() > kMaxKeyLength) return false;
    for (std::size_t end = key.find(u'\\'); end != std::u16string_view::npos; end = key.find(u'\\', end + 1))
        m_keys.try_emplace({root, std::u16string(key.substr(0, end))});
    auto& values = m_keys[{root, std::u16string(key)}];
    NamedValue* found = Find(root, key, name);
    if (found != nullptr)
        found->value = value;
    else
        values.push_back({std::u16string(name), value});
    return true;
}

bool CMemoryRegistry::Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    const auto found = m_keys.find({root, std::u16string(key)});
    if (found != m_keys.end()) std::erase_if(found->second, [name](const auto& v) { return v.name == name; });
    return true;
}

bool CMemoryRegistry::Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                               std::span<const RegistryAssignment> changes) {
    if (key.size() > kMaxKeyLength) return false;
    const auto isAsExpected = [&](const RegistryAssignment& value) {
        return Query(root, key, value.name) == value.value;
    };
    if (!std::all_of(expected.begin(), expected.end(), isAsExpected)) return false;
    for (const RegistryAssignment& change : changes)
        change.value ? Set(root, key, change.name, *change.value) : Remove(root, key, change.name);
    return true;
}

std::vector<RegistryEntry> CMemoryRegistry::List() {
    std::vector<RegistryEntry> entries;
    for (const auto& [key, values] : m_keys) {
        const std::size_t first = entries.size();
        for (const NamedValue& value : values)
            entries.push_back({key.first, key.second, value.name, value.value});
        std::sort(entries.begin() + static_cast<std::ptrdiff_t>(first), entries.end(),
                  [](const RegistryEntry& a, const RegistryEntry& b) { return a.name < b.name; });
    }
    return entries;
}

}  // namespace rlx

#pragma once

#include <map>
#include <utility>

#include "platform/registry.h"

namespace rlx {

/// A registry that is gone with the object.
class CMemoryRegistry : public IRegistry {
public:
    bool KeyExists(RegistryRoot root, std::u16string_view key) override;
    std::vector<std::u16string> ValueNames(RegistryRoot root, std::u16string_view key) override;
    std::optional<RegistryValue> Query(RegistryRoot root, std::u16string_view key, std::u16string_view name) override;
    bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name, const RegistryValue& value) override;
    bool Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) override;
    bool Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                  std::span<const RegistryAssignment> changes) override;
    std::vector<RegistryEntry> List() override;

private:
    struct NamedValue {
        std::u16string name;
        RegistryValue value;
    };
    using Key = std::pair<RegistryRoot, std::u16string>;

    NamedValue* Find(RegistryRoot root, std::u16string_view key, std::u16string_view name);

    std::map<Key, std::vector<NamedValue>> m_keys;  ///< values in the order in which they were first written
};

}  // namespace rlx

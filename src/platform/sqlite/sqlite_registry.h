#pragma once

#include "platform/registry.h"
#include "platform/sqlite/connection.h"

namespace rlx {

/// The registry in the device store. Does not own the connection.
class CSqliteRegistry : public IRegistry {
public:
    explicit CSqliteRegistry(CConnection& connection);

    bool KeyExists(RegistryRoot root, std::u16string_view key) override;
    std::vector<std::u16string> ValueNames(RegistryRoot root, std::u16string_view key) override;
    std::optional<RegistryValue> Query(RegistryRoot root, std::u16string_view key, std::u16string_view name) override;
    bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name, const RegistryValue& value) override;
    bool Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) override;
    bool Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                  std::span<const RegistryAssignment> changes) override;
    std::vector<RegistryEntry> List() override;

private:
    bool CreateKey(RegistryRoot root, std::u16string_view key);
    bool Store(RegistryRoot root, std::u16string_view key, std::u16string_view name, const RegistryValue& value);

    CConnection& m_connection;
};

}  // namespace rlx

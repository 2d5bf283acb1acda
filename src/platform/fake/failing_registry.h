#pragma once

#include "platform/fake/failure_plan.h"
#include "platform/registry.h"

namespace rlx {

/// Another registry whose writes are refused as the plan says, and whose reads can be made to fail. Owns neither.
class CFailingRegistry : public IRegistry {
public:
    CFailingRegistry(IRegistry& registry, CFailurePlan& writes) : m_registry(registry), m_writes(writes) {}

    /// From now on nothing can be read (true), or all can again.
    void FailReads(bool fail) { m_failReads = fail; }

    bool KeyExists(RegistryRoot root, std::u16string_view key) override {
        return m_failReads || m_registry.KeyExists(root, key);
    }
    std::vector<std::u16string> ValueNames(RegistryRoot root, std::u16string_view key) override {
        return m_failReads ? std::vector<std::u16string>() : m_registry.ValueNames(root, key);
    }
    std::optional<RegistryValue> Query(RegistryRoot root, std::u16string_view key, std::u16string_view name) override {
        return m_failReads ? std::nullopt : m_registry.Query(root, key, name);
    }
    bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
             const RegistryValue& value) override {
        return m_writes.Allows() && m_registry.Set(root, key, name, value);
    }
    bool Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) override {
        return m_writes.Allows() && m_registry.Remove(root, key, name);
    }
    bool Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                  std::span<const RegistryAssignment> changes) override {
        return m_writes.Allows() && m_registry.Exchange(root, key, expected, changes);
    }
    std::vector<RegistryEntry> List() override {
        return m_failReads ? std::vector<RegistryEntry>() : m_registry.List();
    }

private:
    IRegistry& m_registry;
    CFailurePlan& m_writes;
    bool m_failReads = false;
};

}  // namespace rlx

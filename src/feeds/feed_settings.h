#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace rlx {

/// Texts and numbers of the registry as the feeds use them. A value that is missing, or of another type, reads as
/// nothing; a refused write is not reported.
class CFeedSettings {
public:
    explicit CFeedSettings(IRegistry& registry) : m_registry(registry) {}

    /// Empty when missing.
    std::u16string Text(RegistryRoot root, std::u16string_view key, std::u16string_view name) const;
    void SetText(std::u16string_view key, std::u16string_view name, std::u16string_view text);

    std::optional<std::uint32_t> Number(std::u16string_view key, std::u16string_view name) const;
    void SetNumber(std::u16string_view key, std::u16string_view name, std::uint32_t number);

private:
    IRegistry& m_registry;
};

}  // namespace rlx

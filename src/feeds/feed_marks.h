#pragma once

#include <array>
#include <optional>

#include "feeds/setting_names.h"
#include "platform/registry.h"

namespace rlx {

/// The registry values that a request changes, as they were before it.
class CFeedMarks {
public:
    explicit CFeedMarks(IRegistry& registry);

    /// Puts all of them back, the missing ones too.
    void Restore();

private:
    static constexpr std::array<const char16_t*, 3> kNames = {kValueSession, kValueNewsId, kValueNewNews};

    IRegistry& m_registry;
    std::array<std::optional<RegistryValue>, kNames.size()> m_values;
};

}  // namespace rlx

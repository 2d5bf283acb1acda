#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/registry.h"
#include "shell/setting_names.h"

namespace rlx {

/// The registry values that a request changes, as they were before it.
class CFeedMarks {
public:
    explicit CFeedMarks(IRegistry& registry);

    /// Puts all of them back, the missing ones too.
    void Restore();

private:
    static constexpr std::array<std::u16string_view, 3> kNames = {names::kSession, names::kNewsId, names::kNewNews};

    IRegistry& m_registry;
    std::array<std::optional<RegistryValue>, kNames.size()> m_values;
};

}  // namespace rlx

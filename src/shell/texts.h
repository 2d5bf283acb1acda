#pragma once

#include <string>

#include "shell/text_id.h"

namespace rlx {

/// The string table of the language in force.
class ITexts {
public:
    virtual ~ITexts() = default;

    /// The text of that number; empty when the table has none.
    virtual std::u16string Text(TextId id) const = 0;
};

}  // namespace rlx

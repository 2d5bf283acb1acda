#pragma once

#include <functional>
#include <optional>

#include "shell/resources.h"

namespace rlx::cli {

/// The texts of the language in force, which is found out when the first text is asked for: most answers are numbers.
/// What is said while that goes on is said in English.
class CSessionTexts : public ITexts {
public:
    explicit CSessionTexts(std::function<CResources()> load) : m_load(std::move(load)) {}

    std::u16string Text(TextId id) const override {
        if (!m_resources) {
            m_resources.emplace();
            m_resources = m_load();
        }
        return m_resources->Text(id);
    }

private:
    std::function<CResources()> m_load;
    mutable std::optional<CResources> m_resources;
};

}  // namespace rlx::cli

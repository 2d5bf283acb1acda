#pragma once

#include <map>

#include "base/number.h"
#include "shell/texts.h"

namespace rlx::test {

/// A string table in which each text is its own number in braces, so that a test sees which texts were put together.
/// Texts can be set where the words matter.
class CNumberTexts : public ITexts {
public:
    std::u16string Text(int id) const override {
        const auto at = m_texts.find(id);
        return at == m_texts.end() ? u"{" + FormatInteger(id) + u"}" : at->second;
    }

    void Set(int id, std::u16string text) { m_texts[id] = std::move(text); }

private:
    std::map<int, std::u16string> m_texts;
};

}  // namespace rlx::test

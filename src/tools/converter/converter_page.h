#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "tools/converter/recent_pairs.h"
#include "tools/converter/unit_tables.h"

namespace rlx {

/// What the converter page holds and computes: category, two units, value and result. The result is computed anew after
/// each change. Does not own texts, boxes and settings; user-interface thread.
class CConverterPage {
public:
    CConverterPage(const ITexts& texts, IMessageBoxes& boxes, CRegistryStore& settings);

    /// Takes the units as they now are. The chosen units stay chosen by name where they are still there.
    void SetTables(UnitTables tables);

    /// Selects the first unit on both sides.
    void SelectCategory(std::size_t category);
    void SelectFrom(std::size_t index);
    void SelectTo(std::size_t index);

    /// Comes at every key: a value that goes on lying below absolute zero is told once.
    void SetValue(std::u16string_view text);

    /// "From" becomes "to".
    void Swap();

    /// Value and result become "0".
    void Reset();

    /// Notes the pair as used, in the settings too; called when a conversion is finished rather than at each key.
    void Remember();
    void Recall(const RecentPair& pair);

    std::size_t Category() const { return m_category; }
    const std::vector<Unit>& Units() const { return m_tables[m_category]; }
    std::size_t From() const { return m_from; }
    std::size_t To() const { return m_to; }
    const std::u16string& ValueText() const { return m_value; }
    double Value() const;
    double Result() const { return m_result; }
    const std::u16string& ResultText() const { return m_resultText; }

    /// The pairs used lately, newest first, without those of which a unit is gone.
    std::vector<RecentPair> Recent() const;

private:
    /// Whether a value below absolute zero is told each time, or only when the one before was not.
    enum class Notice { kAlways, kOnce };

    void Compute(Notice notice = Notice::kAlways);
    void ShowResult(double result);

    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
    CRegistryStore& m_settings;
    UnitTables m_tables;
    std::size_t m_category = 0;
    std::size_t m_from = 0;
    std::size_t m_to = 0;
    std::u16string m_value = u"0";
    bool m_belowZero = false;
    double m_result = 0;
    std::u16string m_resultText = u"0";
    std::vector<RecentPair> m_recent;  ///< as in the settings
};

}  // namespace rlx

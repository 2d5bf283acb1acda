#include "tools/converter/converter_page.h"

#include <algorithm>
#include <utility>

#include "base/number.h"
#include "shell/boxes.h"
#include "tools/converter/conversion.h"
#include "tools/converter/text_ids.h"

namespace rlx {

namespace {

std::optional<std::size_t> PlaceOf(const std::vector<Unit>& units, std::u16string_view name) {
    const auto at = std::ranges::find(units, name, &Unit::name);
    if (at == units.end()) return std::nullopt;
    return static_cast<std::size_t>(at - units.begin());
}

std::u16string NameAt(const std::vector<Unit>& units, std::size_t index) {
    return index < units.size() ? units[index].name : std::u16string();
}

}  // namespace

CConverterPage::CConverterPage(const ITexts& texts, IMessageBoxes& boxes, CRegistryStore& settings)
    : m_texts(texts), m_boxes(boxes), m_settings(settings), m_recent(LoadRecentPairs(settings)) {}

void CConverterPage::SetTables(UnitTables tables) {
    const std::u16string from = NameAt(Units(), m_from);
    const std::u16string to = NameAt(Units(), m_to);
    m_tables = std::move(tables);
    m_from = PlaceOf(Units(), from).value_or(0);
    m_to = PlaceOf(Units(), to).value_or(0);
    Compute(Notice::kOnce);
}

void CConverterPage::SelectCategory(std::size_t category) {
    m_category = std::min(category, kCategoryCount - 1);
    m_from = 0;
    m_to = 0;
    Compute();
}

void CConverterPage::SelectFrom(std::size_t index) {
    m_from = index;
    Compute();
}

void CConverterPage::SelectTo(std::size_t index) {
    m_to = index;
    Compute();
}

void CConverterPage::SetValue(std::u16string_view text) {
    m_value = text;
    Compute(Notice::kOnce);
}

void CConverterPage::Swap() {
    std::swap(m_from, m_to);
    Compute();
}

void CConverterPage::Reset() {
    m_value = u"0";
    m_belowZero = false;
    m_result = 0;
    m_resultText = u"0";
}

void CConverterPage::Remember() {
    RecentPair pair{m_category, NameAt(Units(), m_from), NameAt(Units(), m_to)};
    if (pair.from.empty() || pair.to.empty()) return;
    std::vector<RecentPair> recent = Recent();
    std::erase(recent, pair);
    recent.insert(recent.begin(), std::move(pair));
    if (recent.size() > kMaxRecentPairs) recent.resize(kMaxRecentPairs);
    if (recent == m_recent) return;
    m_recent = std::move(recent);
    SaveRecentPairs(m_settings, m_recent);
}

std::vector<RecentPair> CConverterPage::Recent() const {
    std::vector<RecentPair> recent = m_recent;
    std::erase_if(recent, [this](const RecentPair& pair) { return !HasPair(m_tables, pair); });
    return recent;
}

void CConverterPage::Recall(const RecentPair& pair) {
    if (pair.category >= kCategoryCount) return;
    const std::optional<std::size_t> from = PlaceOf(m_tables[pair.category], pair.from);
    const std::optional<std::size_t> to = PlaceOf(m_tables[pair.category], pair.to);
    if (!from || !to) return;
    m_category = pair.category;
    m_from = *from;
    m_to = *to;
    Compute();
}

double CConverterPage::Value() const {
    return ParseNumber(m_value);
}

void CConverterPage::Compute(Notice notice) {
    if (m_from >= Units().size() || m_to >= Units().size()) return;
    const std::optional<double> result = Convert(Value(), m_tables, m_category, m_from, m_to);
    ShowResult(result.value_or(0));
    const bool known = std::exchange(m_belowZero, !result.has_value()) && notice == Notice::kOnce;
    if (!result && !known) m_boxes.Show(ErrorBox(m_texts, m_texts.Text(kTextBelowAbsoluteZero)));
}

void CConverterPage::ShowResult(double result) {
    m_result = result;
    m_resultText = rlx::ResultText(result, m_texts);
}

}  // namespace rlx

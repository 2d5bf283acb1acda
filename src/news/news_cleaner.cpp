#include "news/news_cleaner.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <vector>

#include "news/html_tokens.h"
#include "news/news_elements.h"
#include "news/news_writer.h"

namespace rlx {

namespace {

/// Never has content nor an end.
bool IsEmpty(const NewsElement& element) {
    return element.form == NewsForm::kBreak || element.form == NewsForm::kRule;
}

/// Takes from the page what may stay; knows which elements are open.
class CCleaner {
public:
    explicit CCleaner(const NewsLimits& limits) : m_limits(limits), m_writer(limits) {}

    bool IsFull() const { return m_writer.IsFull(); }

    void Take(const HtmlToken& token) {
        if (token.kind == HtmlToken::Kind::kText) return m_writer.Text(token.text);
        if (token.name == u"img") return token.kind == HtmlToken::Kind::kStart ? m_writer.Picture(token) : void();
        const NewsElement* element = FindNewsElement(token.name);
        if (!element) return;
        if (token.kind == HtmlToken::Kind::kStart) {
            Start(*element, token);
        } else if (!IsEmpty(*element)) {
            End(*element);
        }
    }

    std::u16string Finish() {
        while (!m_open.empty())
            CloseLast();
        return m_writer.Take();
    }

private:
    struct Open {
        const NewsElement* element;
        int cells = 0;  ///< begun in this row
    };

    void Start(const NewsElement& element, const HtmlToken& token) {
        if (element.form != NewsForm::kInline && element.form != NewsForm::kBreak) CloseForStartOf(element.form);
        if (!Fits(element.form)) return;
        m_writer.Start(element, token);
        if (element.form == NewsForm::kCell) ++m_open.back().cells;
        if (element.form == NewsForm::kCell || element.form == NewsForm::kRow) ++m_cellsAndRows;
        if (!IsEmpty(element)) m_open.push_back({&element});
    }

    /// Rows and cells belong to a table, whatever else may stand alone.
    bool Fits(NewsForm form) const {
        if (form == NewsForm::kBreak || form == NewsForm::kRule) return true;
        if (static_cast<int>(m_open.size()) >= m_limits.depth) return false;
        const NewsForm inner = m_open.empty() ? NewsForm::kBlock : m_open.back().element->form;
        switch (form) {
            case NewsForm::kTable:
                return CountOpen(NewsForm::kTable) < m_limits.tables;
            case NewsForm::kList:
                return CountOpen(NewsForm::kList) < m_limits.lists;
            case NewsForm::kRows:
                return inner == NewsForm::kTable;
            case NewsForm::kRow:
                return (inner == NewsForm::kTable || inner == NewsForm::kRows) && m_cellsAndRows < m_limits.cells;
            case NewsForm::kCell:
                return inner == NewsForm::kRow && m_cellsAndRows < m_limits.cells &&
                       m_open.back().cells < m_limits.columns;
            default:
                return inner != NewsForm::kTable && inner != NewsForm::kRows && inner != NewsForm::kRow;
        }
    }

    int CountOpen(NewsForm form) const {
        return static_cast<int>(
            std::ranges::count_if(m_open, [&](const Open& open) { return open.element->form == form; }));
    }

    /// What a starting element ends by itself: a paragraph the former one, an item the former item, and so on.
    void CloseForStartOf(NewsForm form) {
        switch (form) {
            case NewsForm::kItem:
                CloseUpTo({NewsForm::kItem}, {NewsForm::kList, NewsForm::kCell});
                break;
            case NewsForm::kCell:
                CloseUpTo({NewsForm::kCell}, {NewsForm::kTable});
                break;
            case NewsForm::kRow:
                CloseUpTo({NewsForm::kRow}, {NewsForm::kTable});
                break;
            case NewsForm::kRows:
                CloseUpTo({NewsForm::kRows, NewsForm::kRow}, {NewsForm::kTable});
                break;
            default:
                CloseParagraph();
        }
    }

    void CloseParagraph() {
        for (std::size_t i = m_open.size(); i-- > 0;) {
            if (m_open[i].element->name == u"p") return CloseDownTo(i);
            if (m_open[i].element->form != NewsForm::kInline) return;
        }
    }

    /// Closes the outermost open element of the forms that is not outside the innermost barrier.
    void CloseUpTo(std::initializer_list<NewsForm> forms, std::initializer_list<NewsForm> barriers) {
        std::optional<std::size_t> outermost;
        for (std::size_t i = m_open.size(); i-- > 0;) {
            if (std::ranges::count(barriers, m_open[i].element->form) > 0) break;
            if (std::ranges::count(forms, m_open[i].element->form) > 0) outermost = i;
        }
        if (outermost) CloseDownTo(*outermost);
    }

    /// An end tag closes its element and all within, but reaches out of no cell unless it belongs to the table.
    void End(const NewsElement& element) {
        const bool ofTable = element.form >= NewsForm::kTable && element.form <= NewsForm::kCell;
        for (std::size_t i = m_open.size(); i-- > 0;) {
            if (m_open[i].element->name == element.name) return CloseDownTo(i);
            const NewsForm form = m_open[i].element->form;
            if (form == NewsForm::kTable || (!ofTable && form == NewsForm::kCell)) return;
            if (element.form == NewsForm::kInline && form != NewsForm::kInline) return;
        }
    }

    void CloseDownTo(std::size_t index) {
        while (m_open.size() > index)
            CloseLast();
    }

    void CloseLast() {
        m_writer.End(*m_open.back().element);
        m_open.pop_back();
    }

    const NewsLimits& m_limits;
    CNewsWriter m_writer;
    std::vector<Open> m_open;  ///< outermost first
    int m_cellsAndRows = 0;
};

}  // namespace

std::u16string CleanNewsPage(std::u16string_view page, const NewsLimits& limits) {
    CHtmlTokens tokens(page);
    CCleaner cleaner(limits);
    for (auto token = tokens.Next(); token && !cleaner.IsFull(); token = tokens.Next())
        cleaner.Take(*token);
    return cleaner.Finish();
}

}  // namespace rlx

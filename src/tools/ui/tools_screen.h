#pragma once

#include <QPointF>
#include <QStackedWidget>
#include <optional>
#include <vector>

#include "shell/registry_store.h"
#include "shell/texts.h"
#include "tools/ui/tool_header.h"
#include "tools/ui/tool_list.h"
#include "uikit/look.h"
#include "uikit/screen.h"
#include "uikit/tool_page.h"

namespace rlx {

/// The Tools screen: a list of tools as cards, and the page of the one that was chosen. Escape and the header lead back
/// to the list; Ctrl+PageUp, Ctrl+PageDown and a swipe lead to the page before or behind. The page is remembered.
class CToolsScreen : public CScreen {
    Q_OBJECT

public:
    /// All references must outlive the screen.
    CToolsScreen(CRegistryStore& settings, const ITexts& texts, const CLook& look);

    /// Appends a page, which the screen owns. The page that was shown last opens at once.
    void AddPage(CToolPage* page);

    /// Shows a page, from 0, or the list of tools; false when the page shown does not want to be left.
    bool ShowPage(std::optional<std::size_t> index);

    /// The page shown; null for the list.
    CToolPage* Current() const;

    void Refresh() override;
    QList<QAction*> Commands() override;
    bool MayLeave() override;
    bool GoBack() override;
    void Entered() override;
    int ViewCount() const override { return 1 + static_cast<int>(m_pages.size()); }
    QString ViewName(int view) const override;
    void ShowView(int view) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void Open(std::optional<std::size_t> index);
    void StepPage(int by);

    CRegistryStore& m_settings;
    const ITexts& m_texts;
    const CLook& m_look;
    CToolHeader* m_header;
    QStackedWidget* m_stack;
    CToolList* m_list;
    std::vector<CToolPage*> m_pages;
    std::optional<std::size_t> m_current;
    std::optional<QPointF> m_swipeFrom;
};

}  // namespace rlx

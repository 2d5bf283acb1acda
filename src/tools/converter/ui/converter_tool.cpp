#include "tools/converter/ui/converter_tool.h"

#include "shell/fill_text.h"
#include "tools/converter/ui/unit_dialog.h"
#include "tools/converter/unit_search.h"
#include "uikit/qt_text.h"

namespace rlx {

CConverterTool::CConverterTool(IObjectStore& store, CRegistryStore& settings, const CResources& resources,
                               IMessageBoxes& boxes, const CLook& look)
    : m_resources(resources),
      m_boxes(boxes),
      m_database(store),
      m_page(resources, boxes, settings),
      m_form(new CConverterForm(resources, look, m_recentMenu, this)) {
    setObjectName("converterPage");
    ConnectForm();
    m_form->TakeColours();
    m_form->ShowValue(ToQString(m_page.ValueText()));
    m_database.Open();
    LoadUnits();
    ShowResult();
}

void CConverterTool::ConnectForm() {
    const auto shown = [this](auto change) {
        change();
        ShowResult();
    };
    connect(m_form, &CConverterForm::CategoryChosen, this, [this, shown](int index) {
        Remember();
        shown([&] { m_page.SelectCategory(static_cast<std::size_t>(index)); });
        ShowUnits();
    });
    connect(m_form, &CConverterForm::FromChosen, this,
            [this, shown](int index) { shown([&] { m_page.SelectFrom(static_cast<std::size_t>(index)); }); });
    connect(m_form, &CConverterForm::ToChosen, this,
            [this, shown](int index) { shown([&] { m_page.SelectTo(static_cast<std::size_t>(index)); }); });
    connect(m_form, &CConverterForm::ValueEdited, this,
            [this, shown](const QString& text) { shown([&] { m_page.SetValue(FromQString(text)); }); });
    connect(m_form, &CConverterForm::ValueEntered, this, &CConverterTool::Remember);
    connect(m_form, &CConverterForm::SwapWanted, this, [this, shown] {
        shown([&] { m_page.Swap(); });
        ShowUnits();
    });
    connect(m_form, &CConverterForm::CopyWanted, this, [this] {
        Remember();
        m_form->CopyResult();
    });
    connect(m_form, &CConverterForm::ResetWanted, this, [this] {
        Remember();
        m_page.Reset();
        m_form->ShowValue(ToQString(m_page.ValueText()));
        ShowResult();
    });
    connect(&m_recentMenu, &QMenu::aboutToShow, this, &CConverterTool::FillRecent);
    connect(m_form, &CConverterForm::EditWanted, this, &CConverterTool::EditUnits);
}

void CConverterTool::Refresh() {
    m_form->TakeColours();
    LoadUnits();
    ShowResult();
}

void CConverterTool::Entered() {
    m_form->FocusValue();
}

bool CConverterTool::MayLeave() {
    Remember();
    return true;
}

void CConverterTool::LoadUnits() {
    m_page.SetTables(m_database.ReadTables());
    ShowUnits();
}

/// The lists follow the page: after another category, other units, a swap.
void CConverterTool::ShowUnits() {
    QStringList names;
    for (const Unit& unit : m_page.Units())
        names << ToQString(unit.name);
    m_form->ShowUnits(names, [this](const std::u16string& text) { return MatchingUnits(m_page.Units(), text); });
    m_form->ShowChoice(m_page.Category(), m_page.From(), m_page.To());
}

void CConverterTool::ShowResult() {
    m_form->ShowResult(ToQString(m_page.ResultText()));
}

/// A pair counts as used once a value was converted with it.
void CConverterTool::Remember() {
    if (m_page.Value() != 0) m_page.Remember();
}

void CConverterTool::FillRecent() {
    Remember();
    m_recentMenu.clear();
    for (const RecentPair& pair : m_page.Recent()) {
        const std::u16string text = FillText(m_resources.Text(kTextPairOfUnits), {pair.from, pair.to});
        // In a menu "&" marks the letter of a shortcut.
        m_recentMenu.addAction(ToQString(text).replace("&", "&&"), this, [this, pair] {
            m_page.Recall(pair);
            ShowUnits();
            ShowResult();
        });
    }
    if (m_recentMenu.isEmpty())
        m_recentMenu.addAction(ToQString(m_resources.Text(kTextNoRecentPairs)))->setEnabled(false);
}

void CConverterTool::EditUnits() {
    CUnitDialog dialog(m_database, m_resources, m_boxes, m_page.Category(), window());
    connect(&dialog, &CUnitDialog::UnitsChanged, this, [this] {
        LoadUnits();
        ShowResult();
    });
    dialog.exec();
}

void CConverterTool::resizeEvent(QResizeEvent* /*event*/) {
    m_form->setGeometry(rect());
}

}  // namespace rlx

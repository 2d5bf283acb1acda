#include "tools/converter/ui/converter_tool.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QToolTip>

#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/ui/unit_dialog.h"
#include "tools/converter/unit_search.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kPanelOpacity = 208;  // of 255
constexpr double kPanelRadius = 10;

QFont Sized(QFont font, int pixels) {
    font.setPixelSize(pixels);
    return font;
}

}  // namespace

CConverterTool::CConverterTool(IObjectStore& store, CRegistryStore& settings, const CResources& resources,
                               IMessageBoxes& boxes, const CLook& look)
    : m_resources(resources), m_boxes(boxes), m_look(look), m_database(store), m_page(resources, boxes, settings) {
    setObjectName("converterPage");
    MakeSelectors();
    MakeFields();
    MakeButtons();
    ConnectAll();
    ApplyLook();
    m_database.Open();
    LoadUnits();
    ShowResult();
}

void CConverterTool::MakeSelectors() {
    const CSearchPopup::Words words{ToQString(m_resources.Text(kTextUnitSearchHint)),
                                    ToQString(m_resources.Text(kTextNothingFound))};
    const auto name = [this](QWidget* widget, const char* objectName, int text) {
        widget->setObjectName(objectName);
        widget->setAccessibleName(ToQString(m_resources.Text(text)));
    };
    m_category = new QComboBox(this);
    name(m_category, "category", kTextMeasure);
    for (std::size_t i = 0; i < kCategoryCount; ++i)
        m_category->addItem(ToQString(CategoryName(i, m_resources)));
    m_fromCaption = new QLabel(ToQString(m_resources.Text(kTextConvertFrom)), this);
    m_from = new CSearchCombo(words, this);
    name(m_from, "fromUnit", kTextConvertFrom);
    m_toCaption = new QLabel(ToQString(m_resources.Text(kTextConvertTo)), this);
    m_to = new CSearchCombo(words, this);
    name(m_to, "toUnit", kTextConvertTo);
}

void CConverterTool::MakeFields() {
    m_value = new QLineEdit(ToQString(m_page.ValueText()), this);
    m_value->setObjectName("value");
    m_value->setAccessibleName(ToQString(m_resources.Text(kTextUnitValue)));
    m_value->setInputMethodHints(Qt::ImhPreferNumbers);
    m_result = new QLineEdit(this);
    m_result->setObjectName("result");
    m_result->setAccessibleName(ToQString(m_resources.Text(kTextResult)));
    m_result->setReadOnly(true);
}

QPushButton* CConverterTool::MakeButton(const char* name, int text) {
    auto* button = new QPushButton(ToQString(m_resources.Text(text)), this);
    button->setObjectName(name);
    return button;
}

QToolButton* CConverterTool::MakeIconButton(const char* name, int text) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(ToQString(m_resources.Text(text)));
    button->setToolTip(ToQString(m_resources.Text(text)));
    return button;
}

void CConverterTool::MakeButtons() {
    m_swap = MakeIconButton("swap", kTextSwapUnits);
    m_copy = MakeIconButton("copy", kTextCopyResult);
    m_reset = MakeButton("reset", kTextReset);
    m_recent = MakeButton("recent", kTextRecentPairs);
    m_recent->setMenu(&m_recentMenu);
    m_edit = MakeButton("editUnits", kTextEditUnits);
    QWidget* before = m_category;
    for (QWidget* next :
         {static_cast<QWidget*>(m_from), static_cast<QWidget*>(m_value), static_cast<QWidget*>(m_swap),
          static_cast<QWidget*>(m_to), static_cast<QWidget*>(m_result), static_cast<QWidget*>(m_copy),
          static_cast<QWidget*>(m_reset), static_cast<QWidget*>(m_recent), static_cast<QWidget*>(m_edit)}) {
        setTabOrder(before, next);
        before = next;
    }
}

void CConverterTool::ConnectAll() {
    const auto shown = [this](auto change) {
        change();
        ShowResult();
    };
    connect(m_category, &QComboBox::activated, this, [this, shown](int index) {
        Remember();
        shown([&] { m_page.SelectCategory(static_cast<std::size_t>(index)); });
        ShowUnits();
    });
    connect(m_from, &CSearchCombo::Chosen, this,
            [this, shown](int index) { shown([&] { m_page.SelectFrom(static_cast<std::size_t>(index)); }); });
    connect(m_to, &CSearchCombo::Chosen, this,
            [this, shown](int index) { shown([&] { m_page.SelectTo(static_cast<std::size_t>(index)); }); });
    connect(m_value, &QLineEdit::textEdited, this,
            [this, shown](const QString& text) { shown([&] { m_page.SetValue(FromQString(text)); }); });
    connect(m_value, &QLineEdit::returnPressed, this, [this] {
        Remember();
        m_value->selectAll();
    });
    connect(m_swap, &QToolButton::clicked, this, [this, shown] {
        shown([&] { m_page.Swap(); });
        ShowUnits();
    });
    connect(m_copy, &QToolButton::clicked, this, &CConverterTool::CopyResult);
    connect(m_reset, &QPushButton::clicked, this, [this] {
        Remember();
        m_page.Reset();
        m_value->setText(ToQString(m_page.ValueText()));
        ShowResult();
    });
    connect(&m_recentMenu, &QMenu::aboutToShow, this, &CConverterTool::FillRecent);
    connect(m_edit, &QPushButton::clicked, this, &CConverterTool::EditUnits);
}

void CConverterTool::ApplyLook() {
    const PageColours colours{m_look.Colour(SkinKey::kToolsPCC), m_look.Colour(SkinKey::kToolsPCTC),
                              m_look.Colour(SkinKey::kToolsPBCC), m_look.Colour(SkinKey::kToolsTLC)};
    setPalette(PagePalette(m_look, colours));
    m_swap->setIcon(TintedIcon("swap", colours.text));
    m_copy->setIcon(TintedIcon("copy", colours.text));
    update();
}

void CConverterTool::Refresh() {
    ApplyLook();
    LoadUnits();
    ShowResult();
}

void CConverterTool::Entered() {
    m_value->setFocus(Qt::OtherFocusReason);
    m_value->selectAll();
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
    m_category->setCurrentIndex(static_cast<int>(m_page.Category()));
    QStringList names;
    for (const Unit& unit : m_page.Units())
        names << ToQString(unit.name);
    const auto search = [this](const std::u16string& text) { return MatchingUnits(m_page.Units(), text); };
    for (CSearchCombo* combo : {m_from, m_to}) {
        if (combo->Entries() != names) combo->SetEntries(names, search);
    }
    if (names.isEmpty()) return;
    m_from->SetCurrent(static_cast<int>(m_page.From()));
    m_to->SetCurrent(static_cast<int>(m_page.To()));
}

void CConverterTool::ShowResult() {
    m_result->setText(ToQString(m_page.ResultText()));
    m_result->setCursorPosition(0);
    m_result->setToolTip(m_result->text());
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

void CConverterTool::CopyResult() {
    Remember();
    QGuiApplication::clipboard()->setText(m_result->text());
    QToolTip::showText(m_copy->mapToGlobal(m_copy->rect().center()), ToQString(m_resources.Text(kTextCopied)), m_copy);
}

void CConverterTool::EditUnits() {
    CUnitDialog dialog(m_database, m_resources, m_boxes, m_page.Category(), window());
    connect(&dialog, &CUnitDialog::UnitsChanged, this, [this] {
        LoadUnits();
        ShowResult();
    });
    dialog.exec();
}

void CConverterTool::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor panel = palette().color(QPalette::Base);
    panel.setAlpha(kPanelOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(panel);
    painter.drawRoundedRect(m_layout.panel.intersected(rect()), kPanelRadius, kPanelRadius);
    QColor rule = palette().color(QPalette::WindowText);
    rule.setAlpha(96);
    painter.fillRect(m_layout.rule, rule);
}

void CConverterTool::resizeEvent(QResizeEvent* /*event*/) {
    m_layout = LayOutConverter(size());
    setFont(Sized(font(), m_layout.font));
    const QFont digits = Sized(font(), m_layout.digits);
    m_value->setFont(digits);
    m_result->setFont(digits);
    m_category->setGeometry(m_layout.category);
    m_fromCaption->setGeometry(m_layout.fromCaption);
    m_from->setGeometry(m_layout.from);
    m_value->setGeometry(m_layout.value);
    m_swap->setGeometry(m_layout.swap);
    m_toCaption->setGeometry(m_layout.toCaption);
    m_to->setGeometry(m_layout.to);
    m_result->setGeometry(m_layout.result);
    m_copy->setGeometry(m_layout.copy);
    const int gap = 6;
    const int width = (m_layout.buttons.width() - 2 * gap) / 3;
    int left = m_layout.buttons.left();
    for (QPushButton* button : {m_reset, m_recent, m_edit}) {
        button->setGeometry(left, m_layout.buttons.top(), width, m_layout.buttons.height());
        left += width + gap;
    }
}

}  // namespace rlx

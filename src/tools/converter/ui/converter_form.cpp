#include "tools/converter/ui/converter_form.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QToolTip>
#include <array>

#include "shell/text_ids.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/unit_category.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kPanelOpacity = 208;  // of 255
constexpr double kPanelRadius = 10;
constexpr int kButtonGap = 6;

QFont Sized(QFont font, int pixels) {
    font.setPixelSize(pixels);
    return font;
}

}  // namespace

CConverterForm::CConverterForm(const ITexts& texts, const CLook& look, QMenu& recent, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_look(look) {
    MakeSelectors();
    MakeFields();
    MakeButtons(recent);
    OrderTabs();
    ConnectAll();
}

QString CConverterForm::Text(int id) const {
    return ToQString(m_texts.Text(id));
}

void CConverterForm::MakeSelectors() {
    const CSearchPopup::Words words{Text(kTextUnitSearchHint), Text(kTextNothingFound)};
    const auto name = [this](QWidget* widget, const char* objectName, int text) {
        widget->setObjectName(objectName);
        widget->setAccessibleName(Text(text));
    };
    m_category = new QComboBox(this);
    name(m_category, "category", kTextMeasure);
    for (std::size_t i = 0; i < kCategoryCount; ++i)
        m_category->addItem(ToQString(CategoryName(i, m_texts)));
    m_fromCaption = new QLabel(Text(kTextConvertFrom), this);
    m_from = new CSearchCombo(words, this);
    name(m_from, "fromUnit", kTextConvertFrom);
    m_toCaption = new QLabel(Text(kTextConvertTo), this);
    m_to = new CSearchCombo(words, this);
    name(m_to, "toUnit", kTextConvertTo);
}

void CConverterForm::MakeFields() {
    m_value = new QLineEdit(this);
    m_value->setObjectName("value");
    m_value->setAccessibleName(Text(kTextUnitValue));
    m_value->setInputMethodHints(Qt::ImhPreferNumbers);
    m_result = new QLineEdit(this);
    m_result->setObjectName("result");
    m_result->setAccessibleName(Text(kTextResult));
    m_result->setReadOnly(true);
}

QPushButton* CConverterForm::MakeButton(const char* name, int text) {
    auto* button = new QPushButton(Text(text), this);
    button->setObjectName(name);
    button->setToolTip(button->text());
    return button;
}

QToolButton* CConverterForm::MakeIconButton(const char* name, int text) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(Text(text));
    button->setToolTip(Text(text));
    return button;
}

void CConverterForm::MakeButtons(QMenu& recent) {
    m_swap = MakeIconButton("swap", kTextSwapUnits);
    m_copy = MakeIconButton("copy", kTextCopyResult);
    m_reset = MakeButton("reset", kTextReset);
    m_recent = MakeButton("recent", kTextRecentPairs);
    m_recent->setMenu(&recent);
    m_edit = MakeButton("editUnits", kTextEditUnits);
}

void CConverterForm::OrderTabs() {
    const std::array<QWidget*, 10> order{m_category, m_from, m_value, m_swap,   m_to,
                                         m_result,   m_copy, m_reset, m_recent, m_edit};
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void CConverterForm::ConnectAll() {
    connect(m_category, &QComboBox::activated, this, &CConverterForm::CategoryChosen);
    connect(m_from, &CSearchCombo::Chosen, this, &CConverterForm::FromChosen);
    connect(m_to, &CSearchCombo::Chosen, this, &CConverterForm::ToChosen);
    connect(m_value, &QLineEdit::textEdited, this, &CConverterForm::ValueEdited);
    connect(m_value, &QLineEdit::returnPressed, this, &CConverterForm::ValueEntered);
    connect(m_value, &QLineEdit::returnPressed, m_value, &QLineEdit::selectAll);
    connect(m_swap, &QToolButton::clicked, this, &CConverterForm::SwapWanted);
    connect(m_copy, &QToolButton::clicked, this, &CConverterForm::CopyWanted);
    connect(m_reset, &QPushButton::clicked, this, &CConverterForm::ResetWanted);
    connect(m_edit, &QPushButton::clicked, this, &CConverterForm::EditWanted);
}

void CConverterForm::TakeColours() {
    const PageColours colours{m_look.Colour(SkinKey::kToolsPCC), m_look.Colour(SkinKey::kToolsPCTC),
                              m_look.Colour(SkinKey::kToolsPBCC), m_look.Colour(SkinKey::kToolsTLC)};
    setPalette(PagePalette(m_look, colours));
    m_swap->setIcon(TintedIcon("swap", colours.text));
    m_copy->setIcon(TintedIcon("copy", colours.text));
    update();
}

void CConverterForm::ShowUnits(const QStringList& names, const EntrySearch& search) {
    for (CSearchCombo* combo : {m_from, m_to}) {
        if (combo->Entries() != names) combo->SetEntries(names, search);
    }
}

void CConverterForm::ShowChoice(std::size_t category, std::size_t from, std::size_t to) {
    m_category->setCurrentIndex(static_cast<int>(category));
    if (m_from->Entries().isEmpty()) return;
    m_from->SetCurrent(static_cast<int>(from));
    m_to->SetCurrent(static_cast<int>(to));
}

void CConverterForm::ShowResult(const QString& text) {
    m_result->setText(text);
    m_result->setCursorPosition(0);
    m_result->setToolTip(text);
}

void CConverterForm::FocusValue() {
    m_value->setFocus(Qt::OtherFocusReason);
    m_value->selectAll();
}

void CConverterForm::CopyResult() {
    QGuiApplication::clipboard()->setText(m_result->text());
    QToolTip::showText(m_copy->mapToGlobal(m_copy->rect().center()), Text(kTextCopied), m_copy);
}

void CConverterForm::paintEvent(QPaintEvent* /*event*/) {
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

void CConverterForm::resizeEvent(QResizeEvent* /*event*/) {
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
    const int width = (m_layout.buttons.width() - 2 * kButtonGap) / 3;
    int left = m_layout.buttons.left();
    for (QPushButton* button : {m_reset, m_recent, m_edit}) {
        button->setGeometry(left, m_layout.buttons.top(), width, m_layout.buttons.height());
        left += width + kButtonGap;
    }
}

}  // namespace rlx

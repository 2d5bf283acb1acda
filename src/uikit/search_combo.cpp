#include "uikit/search_combo.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <algorithm>

namespace rlx {

namespace {

constexpr int kSmallestWidth = 60;
constexpr int kUsualWidth = 200;
constexpr int kTextMargins = 12;

}  // namespace

CSearchCombo::CSearchCombo(const CSearchPopup::Words& words, QWidget* parent)
    : QAbstractButton(parent), m_words(words) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::pressed, this, [this] { OpenList(); });
}

void CSearchCombo::SetEntries(QStringList entries, EntrySearch search) {
    m_entries = std::move(entries);
    m_search = std::move(search);
    setEnabled(!m_entries.isEmpty());
    SetCurrent(m_entries.isEmpty() ? -1 : 0);
}

void CSearchCombo::SetCurrent(int entry) {
    m_current = entry;
    const QString text = m_entries.value(entry);
    setText(text);
    setToolTip(text);
    setAccessibleDescription(text);
    update();
}

QSize CSearchCombo::sizeHint() const {
    QStyleOptionComboBox option;
    option.initFrom(this);
    const QSize contents(kUsualWidth, fontMetrics().height() + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

QSize CSearchCombo::minimumSizeHint() const {
    return {kSmallestWidth, sizeHint().height()};
}

void CSearchCombo::OpenList(const QString& typed) {
    setDown(false);
    if (m_popup != nullptr || m_entries.isEmpty()) return;
    m_popup = new CSearchPopup(m_entries, m_search, m_words, this);
    connect(m_popup, &CSearchPopup::Chosen, this, &CSearchCombo::Choose);
    m_popup->Open(m_current, typed);
}

void CSearchCombo::Choose(int entry) {
    if (entry < 0 || entry >= m_entries.size()) return;
    SetCurrent(entry);
    emit Chosen(entry);
}

void CSearchCombo::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.frame = true;
    option.subControls = QStyle::SC_All;
    option.state.setFlag(QStyle::State_Sunken, m_popup != nullptr && m_popup->isVisible());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        fontMetrics().elidedText(text(), Qt::ElideRight, std::max(0, field.width() - kTextMargins / 2));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CSearchCombo::keyPressEvent(QKeyEvent* event) {
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    const QString typed = event->text();
    if ((event->key() == Qt::Key_Down && alt) || event->key() == Qt::Key_F4 || event->key() == Qt::Key_Space ||
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        OpenList();
    } else if (event->key() == Qt::Key_Down) {
        Choose(m_current + 1);
    } else if (event->key() == Qt::Key_Up) {
        Choose(m_current - 1);
    } else if (!typed.isEmpty() && typed.front().isPrint() && !event->modifiers().testFlag(Qt::ControlModifier)) {
        OpenList(typed);
    } else {
        event->ignore();
    }
}

}  // namespace rlx

#include "tools/packing/ui/packing_status.h"

namespace rlx {

namespace {

constexpr int kGap = 8;

}  // namespace

CPackingStatus::CPackingStatus(const QString& hint, QWidget* parent)
    : QWidget(parent),
      m_layout(new QGridLayout(this)),
      m_packed(new QLabel(this)),
      m_filter(new QToolButton(this)),
      m_hint(new QLabel(hint, this)) {
    m_packed->setObjectName("packed");
    m_hint->setObjectName("hint");
    m_filter->setObjectName("filterMark");
    m_filter->setFocusPolicy(Qt::NoFocus);
    m_filter->hide();
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(kGap);
    m_layout->setVerticalSpacing(0);
    m_layout->setColumnStretch(2, 1);
    m_layout->addWidget(m_packed, 0, 0);
    m_layout->addWidget(m_filter, 0, 1);
    connect(m_filter, &QToolButton::clicked, this, &CPackingStatus::FilterDismissed);
    Arrange();
}

void CPackingStatus::Set(const QString& packed, const QString& filter) {
    m_packed->setText(packed);
    m_filter->setText(filter);
    m_filter->setVisible(!filter.isEmpty());
    Arrange();
}

void CPackingStatus::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

void CPackingStatus::Arrange() {
    const int mark = m_filter->isHidden() ? 0 : m_filter->sizeHint().width() + kGap;
    const int needed = m_packed->sizeHint().width() + mark + m_hint->sizeHint().width() + 2 * kGap;
    m_layout->removeWidget(m_hint);
    if (needed <= width()) {
        m_layout->addWidget(m_hint, 0, 3);
    } else {
        m_layout->addWidget(m_hint, 1, 0, 1, 4);
    }
}

}  // namespace rlx

#include "tools/ui/tool_header.h"

#include <QHBoxLayout>
#include <QPainter>

#include "uikit/icons.h"

namespace rlx {

namespace {

constexpr int kHeight = 30;
constexpr int kIconSize = 16;
constexpr int kGap = 6;
constexpr int kFontSize = 12;  // pixels

}  // namespace

CToolHeader::CToolHeader(const QString& backText, const CLook& look, QWidget* parent)
    : QWidget(parent), m_look(look), m_back(new QToolButton(this)), m_label(new QLabel(this)) {
    setObjectName("toolHeader");
    QFont plain = font();
    plain.setPixelSize(kFontSize);
    setFont(plain);
    setFixedHeight(kHeight);
    m_back->setObjectName("backToTools");
    m_back->setText(backText);
    m_back->setAccessibleName(backText);
    m_back->setToolTip(backText);
    m_back->setAutoRaise(true);
    m_back->setIconSize({kIconSize, kIconSize});
    m_back->setMinimumSize(kHeight, kHeight - 2);
    m_label->setObjectName("toolTitle");
    m_label->setTextFormat(Qt::PlainText);
    QFont bold = plain;
    bold.setBold(true);
    m_label->setFont(bold);
    m_label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, kGap, 0);
    layout->setSpacing(kGap);
    layout->addWidget(m_back);
    layout->addWidget(m_label, 1);
    connect(m_back, &QToolButton::clicked, this, &CToolHeader::BackChosen);
    connect(&m_look, &CLook::Changed, this, &CToolHeader::ApplyLook);
    ApplyLook();
}

void CToolHeader::SetTitle(const QString& title) {
    m_title = title;
    Fit();
}

void CToolHeader::ApplyLook() {
    QPalette palette = m_look.Palette();
    palette.setColor(QPalette::Button, m_look.Bar());
    setPalette(palette);
    m_back->setIcon(TintedIcon("back", m_look.PanelText()));
    update();
}

/// Where both do not fit, the arrow alone leads back: the page's name matters more.
void CToolHeader::Fit() {
    m_back->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int titleWidth = m_label->fontMetrics().horizontalAdvance(m_title);
    if (m_back->sizeHint().width() + titleWidth + 2 * kGap > width())
        m_back->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_label->setText(m_title);
    m_label->setToolTip(m_title);
}

void CToolHeader::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), m_look.Bar());
}

void CToolHeader::resizeEvent(QResizeEvent* /*event*/) {
    Fit();
}

}  // namespace rlx

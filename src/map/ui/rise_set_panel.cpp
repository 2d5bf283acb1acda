#include "map/ui/rise_set_panel.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "map/ui/fitted_text.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kRadius = 8;
constexpr double kPadding = 6;
constexpr double kTitleShare = 1.15;  // of a line's height
constexpr double kLabelShare = 0.4;   // of the width
constexpr double kMostLine = 30;

}  // namespace

CRiseSetPanel::CRiseSetPanel(const CLook& look, const ITexts& texts, QWidget* parent)
    : QWidget(parent), m_look(look), m_texts(texts) {
    setObjectName("riseSetPanel");
    setAccessibleName(ToQString(texts.Text(kTextRiseAndSet)));
}

void CRiseSetPanel::Show(const QString& city, const Day& day, const Day& next) {
    const auto text = [this](int id) { return ToQString(m_texts.Text(id)); };
    m_title = text(kTextRiseAndSet) + QStringLiteral("  ") + city;
    m_rows = {{{}, day.name, next.name},
              {text(kTextSunrise), ToQString(day.texts.sunrise), ToQString(next.texts.sunrise)},
              {text(kTextSunset), ToQString(day.texts.sunset), ToQString(next.texts.sunset)},
              {text(kTextDayLength), ToQString(day.texts.dayLength), ToQString(next.texts.dayLength), true}};
    m_note = ToQString(day.texts.note);
    QString all = m_title;
    for (const Row& row : m_rows)
        all += QStringLiteral("\n") + row.label + QStringLiteral(" ") + row.today + QStringLiteral(" ") + row.tomorrow;
    setAccessibleDescription(m_note.isEmpty() ? all : all + QStringLiteral("\n") + m_note);
    update();
}

void CRiseSetPanel::PaintRow(QPainter& painter, const QRectF& area, const Row& row) const {
    const double font = area.height() * 0.66;
    const double label = area.width() * kLabelShare;
    const double column = (area.width() - label) / 2;
    painter.setPen(m_look.Colour(SkinKey::kMapRSITC));
    PaintFitted(painter, {area.left(), area.top(), label - 3, area.height()}, row.label, font, Qt::AlignLeft);
    if (row.isDayLength) painter.setPen(m_look.Colour(SkinKey::kMapDLC));
    const bool head = row.label.isEmpty();
    const QRectF first(area.left() + label, area.top(), column - 4, area.height());
    PaintFitted(painter, first, row.today, font, Qt::AlignRight, !head);
    PaintFitted(painter, first.translated(column, 0), row.tomorrow, font, Qt::AlignRight);
}

void CRiseSetPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int lines = static_cast<int>(m_rows.size()) + (m_note.isEmpty() ? 0 : 1);
    const double line = std::min(kMostLine, height() / (lines + kTitleShare));
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()), kRadius, kRadius);
    painter.setClipPath(outline);
    painter.fillRect(rect(), m_look.Colour(SkinKey::kMapRSIBC));
    const QRectF title(0, 0, width(), line * kTitleShare);
    painter.fillRect(title, m_look.Colour(SkinKey::kMapRSTBC));
    painter.setPen(m_look.Colour(SkinKey::kMapRSTTC));
    PaintFitted(painter, title.adjusted(kPadding, 0, -kPadding, 0), m_title, line * 0.72, Qt::AlignLeft, true);
    QRectF area(kPadding, title.bottom(), width() - 2 * kPadding, line);
    for (const Row& row : m_rows) {
        PaintRow(painter, area, row);
        area.translate(0, line);
    }
    painter.setPen(m_look.Colour(SkinKey::kMapRSITC));
    PaintFitted(painter, area, m_note, line * 0.66, Qt::AlignLeft, true);
}

}  // namespace rlx

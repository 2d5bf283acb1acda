#include "map/ui/rise_set_panel.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "map/text_ids.h"
#include "map/ui/fitted_text.h"
#include "places/city_time.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

constexpr double kRadius = 8;
constexpr double kPadding = 6;
constexpr double kTitleShare = 1.15;  // of a line's height
constexpr double kLabelShare = 0.36;  // of the width
constexpr double kColumnGap = 4;
constexpr int kLeastFont = 9;
constexpr double kMostLine = 36;

}  // namespace

CRiseSetPanel::CRiseSetPanel(const CLook& look, const ITexts& texts, QWidget* parent)
    : QWidget(parent), m_look(look), m_texts(texts) {
    setObjectName("riseSetPanel");
    setAccessibleName(ToQString(texts.Text(kTextRiseAndSet)));
}

void CRiseSetPanel::Show(const QString& city, const CitySun& day, const CitySun& next, const Form& form) {
    const auto text = [this](int id) { return ToQString(m_texts.Text(id)); };
    const auto name = [&](const CitySun& sun, TextId word) {
        return form.named ? text(word) : ToQString(CityDateText(sun.date, false, m_texts));
    };
    const SunTexts first = SunTextsOf(day.sun, form.clock, m_texts);
    const SunTexts second = SunTextsOf(next.sun, form.clock, m_texts);
    m_title = text(kTextRiseAndSet) + QStringLiteral("  ") + city;
    m_rows = {{{}, name(day, kTextMapToday), name(next, kTextMapTomorrow)},
              {text(kTextSunrise), ToQString(first.sunrise), ToQString(second.sunrise)},
              {text(kTextSunset), ToQString(first.sunset), ToQString(second.sunset)},
              {text(kTextDayLength), ToQString(first.dayLength), ToQString(second.dayLength), true}};
    m_note = ToQString(first.note);
    QString all = m_title;
    for (const Row& row : m_rows)
        all += QStringLiteral("\n") + row.label + QStringLiteral(" ") + row.today + QStringLiteral(" ") + row.tomorrow;
    if (!m_note.isEmpty()) all += QStringLiteral("\n") + m_note;
    if (all == accessibleDescription()) return;
    setAccessibleDescription(all);
    setToolTip(all);
    update();
}

/// One size for all rows, at which every cell fits.
int CRiseSetPanel::FontFor(double width, double line) const {
    const double label = width * kLabelShare;
    const double column = (width - label) / 2;
    QFont font = this->font();
    font.setBold(true);
    for (int size = static_cast<int>(line * 0.7);; --size) {
        font.setPixelSize(std::max(kLeastFont, size));
        const QFontMetricsF metrics(font);
        const bool fits = std::all_of(m_rows.begin(), m_rows.end(), [&](const Row& row) {
            return metrics.horizontalAdvance(row.label) <= label - kColumnGap &&
                   metrics.horizontalAdvance(row.today) <= column - kColumnGap &&
                   metrics.horizontalAdvance(row.tomorrow) <= column - kColumnGap;
        });
        if (fits || size <= kLeastFont) return font.pixelSize();
    }
}

void CRiseSetPanel::PaintRow(QPainter& painter, const QRectF& area, const Row& row, int font) const {
    const double label = area.width() * kLabelShare;
    const double column = (area.width() - label) / 2;
    painter.setPen(m_look.Colour(SkinKey::kMapRSITC));
    PaintFitted(painter, {area.left(), area.top(), label - kColumnGap, area.height()}, row.label, font, Qt::AlignLeft);
    if (row.isDayLength) painter.setPen(m_look.Colour(SkinKey::kMapDLC));
    const bool head = row.label.isEmpty();
    const QRectF first(area.left() + label, area.top(), column - kColumnGap, area.height());
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
    const int font = FontFor(area.width(), line);
    for (const Row& row : m_rows) {
        PaintRow(painter, area, row, font);
        area.translate(0, line);
    }
    painter.setPen(m_look.Colour(SkinKey::kMapRSITC));
    PaintFitted(painter, area, m_note, font, Qt::AlignLeft, true);
}

}  // namespace rlx

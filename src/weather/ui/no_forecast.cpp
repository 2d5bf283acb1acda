#include "weather/ui/no_forecast.h"

#include <QPainter>
#include <algorithm>

#include "weather/weather_code.h"

namespace rlx {

CNoForecast::CNoForecast(const CLook& look, const CWeatherIcons& icons, QWidget* parent)
    : QWidget(parent), m_look(look), m_icons(icons), m_help(new CLinkButton(look, SkinKey::kWeatherMOREC, this)) {
    m_help->setObjectName("updateNow");
    connect(m_help, &QAbstractButton::clicked, this, &CNoForecast::HelpWanted);
}

void CNoForecast::Show(const QString& why, const QString& help, const QString& icon) {
    m_why = why;
    m_help->setText(help);
    m_help->setAccessibleName(help);
    m_help->setToolTip(help);
    m_help->SetIcon(icon);
    update();
}

void CNoForecast::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_icons.Paint(painter, QRectF(0, height() * 0.08, width(), height() * 0.38), kNoWeatherIcon);
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(std::clamp(height() * 0.08, 12.0, 26.0)));
    painter.setFont(font);
    painter.setPen(m_look.Colour(SkinKey::kWeatherSATC));
    painter.drawText(QRectF(0, height() * 0.48, width(), height() * 0.24), Qt::AlignCenter | Qt::TextWordWrap, m_why);
}

void CNoForecast::resizeEvent(QResizeEvent* /*event*/) {
    const int buttonWidth = std::min(width() / 2, 160);
    m_help->setGeometry(rect().center().x() - buttonWidth / 2, height() * 3 / 4, buttonWidth,
                        std::clamp(height() / 6, 28, 48));
}

}  // namespace rlx

#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>
#include <array>
#include <optional>

#include "uikit/look.h"
#include "weather/ui/link_button.h"
#include "weather/weather_settings.h"

namespace rlx {

/// The buttons of the four places, of which the one shown is checked. A finger that rests on one, or a right click,
/// asks for its menu. The look must outlive it.
class CPlaceButtons : public QObject {
    Q_OBJECT

public:
    /// The buttons, "place0" to "place3", are children of `parent`, and so is this.
    CPlaceButtons(const CLook& look, QWidget* parent);

    void Show(std::size_t slot, const QString& name, const QString& tip, bool checked);
    void Arrange(const std::array<QRect, kWeatherPlaceCount>& places);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void Chosen(std::size_t slot);
    void MenuWanted(std::size_t slot, const QPoint& globalPoint);

private:
    std::optional<std::size_t> SlotOf(const QObject* button) const;

    std::array<CLinkButton*, kWeatherPlaceCount> m_buttons{};
    QTimer m_longTap;
    std::size_t m_held = 0;  ///< that a finger rests on
};

}  // namespace rlx

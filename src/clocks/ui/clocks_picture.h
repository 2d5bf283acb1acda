#pragma once

#include <QPainter>
#include <array>
#include <cstddef>
#include <optional>

#include "clocks/ui/clock_painter.h"
#include "clocks/ui/clocks_layout.h"
#include "places/city_times.h"
#include "shell/clock_text.h"
#include "shell/texts.h"
#include "uikit/look.h"
#include "uikit/still_picture.h"

namespace rlx {

/// What the five clocks show, the home clock first.
struct ShownClocks {
    std::array<ClockReading, 5> readings;
    ClockForm form = ClockForm::kTwentyFour;
    std::optional<std::size_t> focused;  ///< as far as it is to be seen
    int waitingReminders = 0;
};

/// What one of the clocks says.
ClockTexts TextsOf(const ShownClocks& clocks, std::size_t clock, const ITexts& texts);

/// Paints the five clocks on their cards. All but the hands and the times, the most of the work, is painted once and
/// kept. References must outlive it; user-interface thread.
class CClocksPicture {
public:
    CClocksPicture(const CLook& look, const ITexts& texts) : m_look(look), m_texts(texts) {}

    /// To be called when the look has changed.
    void Forget() { m_still.Forget(); }

    void Paint(QPainter& painter, const QSize& size, const ClocksLayout& layout, const ShownClocks& clocks);

private:
    /// What the still part of the picture depends on, but for the look and the layout, which follows from the size.
    struct Still {
        std::array<bool, 5> days{};       ///< the faces that show day
        std::array<ClockTexts, 5> texts;  ///< without the time
        std::optional<std::size_t> focused;

        bool operator==(const Still&) const = default;
    };

    void PaintStill(QPainter& painter, const QSize& size, const ClocksLayout& layout, const Still& still) const;
    void PaintBell(QPainter& painter, const QRectF& bell, int waitingReminders) const;
    ClockColours ColoursOf(std::size_t clock) const;

    const CLook& m_look;
    const ITexts& m_texts;
    CStillPicture<Still> m_still;
};

}  // namespace rlx

#pragma once

#include <QToolButton>

#include "map/ui/map_layout.h"
#include "map/ui/time_scrubber.h"
#include "shell/texts.h"

namespace rlx {

/// What moves the time of the map: the scrubber, the button that changes its span between day and year, and the one
/// that returns to now. The widgets are children of the screen. User-interface thread.
class CTimeControls : public QObject {
    Q_OBJECT

public:
    CTimeControls(const CLook& look, const ITexts& texts, QWidget* screen);

    void Place(const MapLayout& layout);

    /// The time that is shown, and whether it is another than now.
    void Show(const DateTime& time, bool moved);

    /// One step of the scrubber.
    void Step(int steps) { m_scrubber->Step(steps); }

signals:
    /// The person chose another time.
    void Moved(const rlx::DateTime& time);

    /// The person wants the present back.
    void Returned();

private:
    void ToggleSpan();

    const ITexts& m_texts;
    CTimeScrubber* m_scrubber;
    QToolButton* m_span;
    QToolButton* m_now;
};

}  // namespace rlx

#pragma once

#include <functional>
#include <optional>

#include "map/minute_timer.h"
#include "map/ui/map_clock.h"
#include "map/ui/map_layout.h"
#include "map/ui/map_view.h"
#include "map/ui/rise_set_panel.h"
#include "map/ui/time_controls.h"
#include "places/city_times.h"
#include "platform/message_boxes.h"
#include "shell/clock_text.h"
#include "shell/registry_store.h"
#include "uikit/screen.h"
#include "uikit/still_picture.h"

namespace rlx {

/// The world map with its night side, the cities of the five clocks, one of the clocks, and sunrise and sunset of the
/// selected city. A tap on or near a city selects it, another one tells about it. Dragging along the lower edge moves
/// the time that all of it shows; a button returns to now.
class CMapScreen : public CScreen {
    Q_OBJECT

public:
    /// All references must outlive the screen.
    CMapScreen(CCityDatabase& cities, const IClock& clock, CRegistryStore& settings, const ITexts& texts,
               IMessageBoxes& boxes, const CLook& look);

    void Refresh() override;
    void Entered() override;

    /// Called when the user wants to know more of a city.
    void SetShowInformation(std::function<void(CityIndex)> show) { m_showInformation = std::move(show); }

    CityIndex Selected() const { return m_selected; }

    /// What the device's clock shows at the instant of the map.
    DateTime Shown() const;

signals:
    /// A second has passed; comes from the worker.
    void SecondPassed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void TakeSecond();
    void ShowTexts();
    void RedrawNight();
    void MoveTo(const DateTime& time);
    void ReturnToNow();
    void ChooseClock();
    void Select(CityIndex city);
    void SelectNeighbour(int by);
    void MarkCities();
    void DrawNight();
    void PaintStill(QPainter& painter);
    std::vector<CityIndex> ClockCities() const;

    CCityDatabase& m_cities;
    const IClock& m_clock;
    CRegistryStore& m_settings;
    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
    const CLook& m_look;
    std::function<void(CityIndex)> m_showInformation;

    ClockSettings m_choices;
    std::optional<CCityTimes> m_times;  ///< made anew when the settings change
    ClockForm m_form = ClockForm::kTwentyFour;
    bool m_showCities = true;
    std::size_t m_mapClock = 0;  ///< which of the five
    CityIndex m_selected = 0;
    std::int64_t m_shift = 0;  ///< seconds from now to the instant of the map
    bool m_showFocus = false;  ///< only for those who move by keyboard
    bool m_redraw = true;      ///< the next paint draws the shadow anew

    MapLayout m_layout;
    CMapView m_view;
    CStillPicture<bool> m_still;  ///< ground and map; depends on whether the focus shows
    CTimeControls* m_time;
    CMapClock* m_clockButton;
    CRiseSetPanel* m_panel;
    CMinuteTimer m_timer;  ///< last: joined before anything else goes
};

}  // namespace rlx

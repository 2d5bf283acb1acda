#pragma once

#include <QMenu>
#include <QTimer>
#include <functional>
#include <optional>

#include "clocks/ui/choose_city.h"
#include "clocks/ui/clocks_layout.h"
#include "clocks/ui/clocks_picture.h"
#include "places/city_info.h"
#include "places/city_times.h"
#include "platform/message_boxes.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "uikit/look.h"
#include "uikit/screen.h"
#include "uikit/template_menu.h"

namespace rlx {

/// The home clock and four more. A tap tells about the city, a long tap or the menu key offers what can be done with
/// the clock; the arrow keys move between the clocks. All five are parts of this one widget.
class CClocksScreen : public CScreen {
    Q_OBJECT

public:
    /// All references must outlive the screen.
    CClocksScreen(CCityDatabase& cities, const IClock& clock, CRegistryStore& settings, const CResources& resources,
                  IMessageBoxes& boxes, const CLook& look, CityChooser chooseCity);

    void Refresh() override;
    void Tick() override;
    void Entered() override;

    /// Called when the user wants to see more of a city's sun after its information box.
    void SetShowSunDetails(std::function<void(const CitySunDetails&)> show) { m_showSunDetails = std::move(show); }

    /// Called when the user wants to see the reminders, or to set one for a city.
    using OpenReminders = std::function<void(std::optional<CityIndex> city)>;
    void SetOpenReminders(OpenReminders open) { m_openReminders = std::move(open); }

    /// How many reminders wait; a bell with their number stands on the home clock's card, a tap on it opens them.
    void SetWaitingReminders(int count);

    /// Shows the information box of one of the five clocks.
    void ShowInformation(std::size_t clock);

    /// Lets the user put another city on one of the five clocks.
    void ChangeCity(std::size_t clock);

    /// Puts a city on one of the five clocks.
    void StoreCity(std::size_t clock, CityIndex city);

signals:
    /// Another city was chosen for one of the clocks.
    void CitiesChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void MakeMenu();
    void OpenMenu(std::size_t clock, const QPoint& globalPoint);
    void UseAsHome(std::size_t clock);
    void MoveFocus(int columns, int rows);
    void Focus(std::size_t clock, bool show);
    void NameFocusedClock();

    CCityDatabase& m_cities;
    const IClock& m_clock;
    CRegistryStore& m_settings;
    const CResources& m_resources;
    IMessageBoxes& m_boxes;
    const CLook& m_look;
    CityChooser m_chooseCity;
    std::function<void(const CitySunDetails&)> m_showSunDetails;
    OpenReminders m_openReminders;
    std::optional<CCityTimes> m_times;  ///< made anew when the settings change
    ShownClocks m_clocks;
    ClocksLayout m_layout;
    CClocksPicture m_picture;
    CCommandTable m_commands;
    QMenu m_menu;
    QTimer m_longTap;
    std::size_t m_focused = 0;
    std::optional<std::size_t> m_pressed;
    QPoint m_pressedAt;
};

}  // namespace rlx

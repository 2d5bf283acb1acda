#pragma once

#include <QApplication>
#include <memory>
#include <optional>
#include <string>

#include "app/city_commands.h"
#include "app/feed_wiring.h"
#include "app/language_commands.h"
#include "app/main_window.h"
#include "app/reminder_commands.h"
#include "app/silent_message_boxes.h"
#include "app/skin_commands.h"
#include "app/switch_commands.h"
#include "base/calendar.h"
#include "clocks/ui/clocks_screen.h"
#include "map/ui/map_screen.h"
#include "places/city_database.h"
#include "platform/image/image_codec.h"
#include "platform/posix/frozen_clock.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"
#include "platform/sqlite/device_store.h"
#include "shell/application_folder.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "tools/ui/tools_screen.h"
#include "uikit/look.h"
#include "uikit/qt_message_boxes.h"
#include "uikit/template_menu.h"
#include "weather/ui/weather_screen.h"

namespace rlx {

/// What the command line of the window says.
struct WindowOptions {
    std::string home;             ///< application folder; empty: by the usual rules
    std::string store;            ///< device store; empty: by the usual rules
    std::optional<DateTime> now;  ///< frozen device clock
    std::optional<int> bias;      ///< standard bias of the device's zone in minutes
    bool fullScreen = false;
    bool quiet = false;  ///< no message boxes, for pictures
};

/// The composition root of the window: owns the adapters, makes the screens, connects the menu.
class CApplication : public QObject {
    Q_OBJECT

public:
    explicit CApplication(const WindowOptions& options);
    ~CApplication() override;

    /// False when the language could not be loaded: there is no window and the run is to end.
    bool HasWindow() const { return m_window != nullptr; }

    /// Shows the window on the screen that was shown last.
    void Show();

    CMainWindow& Window() { return *m_window; }

private:
    void OpenStore();
    void OpenFolder();
    bool MayAsk() const;
    bool StartLanguage();
    void OpenCities();
    CityChooser Chooser();
    void AddScreens();
    CScreen* MakeClocks();
    CScreen* MakeMap();
    CScreen* MakeWeather();
    CScreen* MakeTools();
    void UpdateWeather();
    void MakeReminders();
    void MakeCommands();
    void AskAtStart();
    void RestoreScreen();
    void ApplyLook();
    void ShowCityInformation(CityIndex city);
    void OpenSunDetails(const CitySunDetails& details);
    std::optional<CityIndex> ChooseCity(QWidget* parent, const QString& title, CityIndex current);

    WindowOptions m_options;
    CPosixFileSystem m_files;
    CSystemClock m_systemClock;
    CFrozenClock m_clock;
    CResources m_resources;
    CQtMessageBoxes m_windowBoxes;
    CSilentMessageBoxes m_silentBoxes;
    IMessageBoxes& m_boxes;  ///< one of the two
    CImageCodec m_codec;
    CLook m_look;
    std::unique_ptr<CDeviceStore> m_store;
    std::optional<CRegistryStore> m_settings;
    std::optional<CApplicationFolder> m_folder;
    std::optional<CLanguageCommands> m_languages;
    std::optional<CCityDatabase> m_cities;
    std::optional<CCityCommands> m_cityCommands;
    std::optional<CWeatherStore> m_weather;
    CCommandTable m_commands;
    std::optional<CSwitchCommands> m_switches;
    std::optional<CFeedWiring> m_feeds;
    std::unique_ptr<CMainWindow> m_window;
    CClocksScreen* m_clocksScreen = nullptr;    ///< owned by the window
    CWeatherScreen* m_weatherScreen = nullptr;  ///< owned by the window; nothing until it is made
    int m_weatherIndex = -1;
    std::unique_ptr<CSkinCommands> m_skins;
    std::optional<CReminderDuty> m_reminderDuty;
    std::optional<CReminderCommands> m_reminders;
};

}  // namespace rlx

#include "app/application.h"

#include <QPlainTextEdit>

#include "app/text_ids.h"
#include "base/number.h"
#include "base/text.h"
#include "map/ui/sun_details.h"
#include "places/text_ids.h"
#include "places/ui/city_chooser.h"
#include "shell/clock_settings.h"
#include "shell/command_ids.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "shell/program_paths.h"
#include "shell/setting_names.h"
#include "shell/store_message.h"
#include "shell/text_ids.h"
#include "today/ui/today_dialog.h"
#include "tools/clothing/ui/clothing_tool.h"
#include "tools/converter/ui/converter_tool.h"
#include "tools/dialing/ui/dialing_tool.h"
#include "tools/packing/ui/packing_page.h"
#include "tools/tiptax/ui/tip_page.h"
#include "uikit/qt_text.h"
#include "uikit/template_dialog.h"

namespace rlx {

namespace {

constexpr std::size_t kCreditsLimit = 1U << 20U;
constexpr const char* kVersion = RLX_VERSION;

}  // namespace

CApplication::CApplication(const WindowOptions& options)
    : m_options(options),
      m_clock(m_systemClock, options.now, options.bias),
      m_windowBoxes(m_resources),
      m_boxes(options.quiet ? static_cast<IMessageBoxes&>(m_silentBoxes) : m_windowBoxes),
      m_look(m_files, m_codec) {
    OpenStore();
    OpenFolder();
    if (!StartLanguage()) return;
    OpenCities();
    m_window = std::make_unique<CMainWindow>(m_clock, m_resources);
    m_windowBoxes.SetOwner(m_window.get());
    m_skins = std::make_unique<CSkinCommands>(SkinPorts{m_files, m_codec, m_resources, m_boxes}, m_folder->Root(),
                                              *m_settings, m_look, *m_window);
    MakeScreens();
    MakeCommands();
    connect(&m_look, &CLook::Changed, this, &CApplication::ApplyLook);
    m_skins->Load();
    RestoreScreen();
}

CApplication::~CApplication() = default;

void CApplication::OpenStore() {
    const std::filesystem::path file = DeviceStoreFile(m_options.store);
    OpenedStore opened = OpenDeviceStore(file, m_clock);
    m_store = std::move(opened.store);
    m_settings.emplace(m_store->Registry());
    const auto box = StoreMessage(opened.outcome, file, opened.movedAside, m_resources);
    if (box) m_boxes.Show(*box);
}

void CApplication::OpenFolder() {
    const FolderSources sources = ProgramFolders(m_options.home);
    const auto folder = PrepareApplicationFolder(m_files, sources);
    if (!folder) {
        const std::u16string name = FromUtf8(FindApplicationFolder(m_files, sources).folder.string());
        m_boxes.Show({m_resources.Text(kTextError), FillText(m_resources.Text(kTextFolderNotReady), {name}),
                      BoxIcon::kExclamation, BoxButtons::kOk});
    }
    m_folder.emplace(m_files, folder.value_or(sources.executableFolder));
}

/// Without a display there is nobody to ask.
bool CApplication::StartLanguage() {
    const bool seen = QGuiApplication::platformName() != "offscreen" && QGuiApplication::platformName() != "minimal";
    const LanguagePorts ports{m_files, *m_folder, m_resources, m_boxes};
    m_languages.emplace(ports, *m_settings, seen && !m_options.quiet);
    return m_languages->Start(m_resources);
}

void CApplication::OpenCities() {
    const auto cityFile = m_folder->Path(u"\\cities.lst").value_or(m_folder->Root() / "cities.lst");
    m_cities.emplace(m_store->Objects(), m_files, m_boxes, m_resources, cityFile);
    m_cities->EnsureCreated();
}

void CApplication::MakeScreens() {
    const CityChooser choose = [this](QWidget* parent, const QString& title, CityIndex current) {
        return ChooseCity(parent, title, current);
    };
    m_clocksScreen = new CClocksScreen(*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look, choose);
    m_window->AddScreen(m_clocksScreen);
    connect(m_clocksScreen, &CClocksScreen::CitiesChanged, m_window.get(), &CMainWindow::RefreshScreens);
    MakeMap();
    m_feeds.emplace(CFeedWiring::Ports{m_files, m_store->Objects(), m_store->Registry(), m_boxes, m_clock, m_resources,
                                       *m_folder, m_look, *m_window});
    MakeWeather();
    m_feeds->AddCurrencyScreen();
    MakeTools();
    m_feeds->AddNewsScreen();
    connect(m_window.get(), &CMainWindow::ScreenShown, this, [this](int index) {
        m_settings->WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kCurrentTab,
                               static_cast<std::uint32_t>(index));
    });
}

void CApplication::MakeMap() {
    auto* map = new CMapScreen(*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look);
    map->SetShowInformation([this](CityIndex city) { ShowCityInformation(city); });
    m_window->AddScreen(map);
    m_clocksScreen->SetShowSunDetails([this](const CitySunDetails& details) { OpenSunDetails(details); });
}

void CApplication::ShowCityInformation(CityIndex city) {
    CCityTimes times(*m_cities, m_clock, m_resources, LoadClockSettings(*m_settings));
    const CitySunDetails details = SunDetailsOf(*m_cities, times, m_resources, city, m_clock.Now());
    const MessageBox box{m_resources.Text(kTextCityInformation), CityInfoText(details, m_resources), BoxIcon::kNone,
                         BoxButtons::kYesNo};
    if (m_boxes.Show(box) == BoxAnswer::kYes) OpenSunDetails(details);
}

void CApplication::OpenSunDetails(const CitySunDetails& details) {
    const bool twelve = m_settings->ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    const DateTime now = m_clock.Now();
    CCityTimes times(*m_cities, m_clock, m_resources, LoadClockSettings(*m_settings));
    const Date date = CityDateOf(ParseInteger(details.effectiveGmt), times.Reference(now), now);
    ShowSunDetails(details, date, twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour, m_resources, m_window.get());
}

void CApplication::MakeTools() {
    m_toolsScreen = new CToolsScreen(*m_settings, m_resources, m_look);
    m_toolsScreen->AddPage(new CConverterTool(m_store->Objects(), *m_settings, m_resources, m_boxes, m_look));
    m_toolsScreen->AddPage(new CDialingTool(m_resources, m_look));
    m_toolsScreen->AddPage(new CClothingTool(m_resources, m_look));
    m_toolsScreen->AddPage(new CPackingPage(m_files, m_folder->Root(), m_resources, m_boxes, m_look));
    m_toolsScreen->AddPage(new CTipPage(m_resources, m_boxes, m_look));
    m_window->AddScreen(m_toolsScreen);
}

void CApplication::MakeWeather() {
    const auto list = m_folder->Path(u"\\cities.wet").value_or(m_folder->Root() / "cities.wet");
    m_weather.emplace(m_store->Objects(), m_files, list);
    const CityChooser choose = [this](QWidget* parent, const QString& title, CityIndex current) {
        return ChooseCity(parent, title, current);
    };
    const WeatherRequest request = [this](const std::u16string& feedName, const QSize& screen,
                                          const std::function<bool()>& goOn) {
        return m_feeds->Weather(feedName, screen, goOn);
    };
    m_weatherScreen = new CWeatherScreen({*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look, m_files,
                                          *m_weather, m_folder->Root(), choose, request});
    m_window->AddScreen(m_weatherScreen);
}

void CApplication::MakeCommands() {
    m_commands.Add(kCommandHomeCity, this, [this] { m_clocksScreen->ChangeCity(0); });
    m_commands.Add(kCommandTwelveHour, this, [this] { ToggleSetting(keys::kRoamlytix, names::kTwelveHour); })
        ->setCheckable(true);
    m_commands.Add(kCommandDeviceTimeZone, this, [this] { ToggleSetting(keys::kWorldClock, names::kSyncZone); })
        ->setCheckable(true);
    m_commands.Add(kCommandShowCities, this, [this] { ToggleSetting(keys::kMap, names::kShowCities, 1); })
        ->setCheckable(true);
    m_commands.Add(kCommandUpdateWeather, this, [this] { m_weatherScreen->Update(); });
    m_commands.Add(kCommandFahrenheit, this, [this] { ToggleSetting(keys::kRoamlytix, names::kFahrenheit); })
        ->setCheckable(true);
    m_commands
        .Add(kCommandFullScreen, this,
             [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); })
        ->setShortcut(QKeySequence::FullScreen);
    m_commands.Add(kCommandUpdateRates, this, [this] { m_feeds->UpdateRates(); });
    m_commands.Add(kCommandFetchNews, this, [this] { m_feeds->FetchNews(); });
    m_commands.Add(kCommandShowNews, this, [this] { m_feeds->ShowNews(); });
    m_commands.Add(kCommandOwnerName, this, [this] { m_feeds->AskOwnerName(); });
    m_commands.Add(kCommandChooseSkin, this, [this] { m_skins->Choose(); });
    m_commands.Add(kCommandEditSkin, this, [this] { m_skins->Edit(); });
    m_commands.Add(kCommandTodayOptions, this,
                   [this] { CTodayDialog(*m_settings, m_resources, m_window.get()).exec(); });
    m_commands.Add(kCommandLanguage, this, [this] { m_languages->Choose(m_window.get()); });
    m_commands.Add(kCommandInstallLanguages, this, [this] { m_languages->Install(m_window.get()); });
    m_commands.Add(kCommandCredits, this, [this] { ShowCredits(); });
    m_commands.Add(kCommandAbout, this, [this] { ShowAbout(); });
    m_commands.Add(kCommandExit, this, [this] { m_window->close(); })->setShortcut(QKeySequence::Quit);
    if (const auto entries = m_resources.Menu(kMenuMain)) FillMenu(m_window->Menu(), *entries, m_commands);
    for (const int command : {kCommandFullScreen, kCommandExit})
        m_window->addAction(m_commands.Find(command));
    connect(m_window.get(), &CMainWindow::AboutToShowMenu, this, &CApplication::UpdateChecks);
}

void CApplication::UpdateChecks() {
    const bool twelve = m_settings->ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    m_commands.Find(kCommandTwelveHour)->setChecked(twelve);
    m_commands.Find(kCommandShowCities)->setChecked(m_settings->ReadDwordOr(keys::kMap, names::kShowCities, 1) == 1);
    const bool fahrenheit = m_settings->ReadDwordOr(keys::kRoamlytix, names::kFahrenheit, 0) == 1;
    m_commands.Find(kCommandFahrenheit)->setChecked(fahrenheit);
    m_commands.Find(kCommandDeviceTimeZone)->setChecked(LoadClockSettings(*m_settings).syncZone != 0);
}

/// Writes the negation of the current state.
void CApplication::ToggleSetting(std::u16string_view key, std::u16string_view name, std::uint32_t fallback) {
    const bool on = m_settings->ReadDwordOr(key, name, fallback) != 0;
    m_settings->WriteDword(RootOf(key), key, name, on ? 0 : 1);
    m_window->RefreshScreens();
}

void CApplication::RestoreScreen() {
    const std::uint32_t stored = m_settings->ReadDwordOr(keys::kRoamlytix, names::kCurrentTab, 0);
    const bool known = stored < m_window->Screens().size();
    m_window->ShowScreen(known ? static_cast<int>(stored) : 0);
}

/// Every screen paints anew when the look changes; dialogs and the frame take the palette.
void CApplication::ApplyLook() {
    QApplication::setPalette(m_look.Palette());
    m_window->SetColours({m_look.Bar(), m_look.PanelText()});
}

std::optional<CityIndex> CApplication::ChooseCity(QWidget* parent, const QString& title, CityIndex current) {
    const bool twelve = m_settings->ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    CCityTimes times(*m_cities, m_clock, m_resources, LoadClockSettings(*m_settings));
    CCityChooser chooser(*m_cities, times, m_resources, twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour, title,
                         current, parent);
    return chooser.exec() == QDialog::Accepted ? chooser.Selected() : std::nullopt;
}

void CApplication::ShowCredits() {
    CTemplateDialog dialog(m_resources.Dialog(kDialogCredits).value_or(DialogTemplate{}), m_window.get());
    dialog.setObjectName("credits");
    dialog.resize(560, 480);
    const auto file = m_folder->Path(u"\\SOURCES.md");
    const auto text = file ? m_files.ReadFile(*file, kCreditsLimit) : std::nullopt;
    if (auto* field = dialog.Control<QPlainTextEdit>(kControlCreditsText)) {
        field->setPlainText(
            ToQString(text ? FromUtf8(*text) : FillText(m_resources.Text(kTextFileNotRead), {u"SOURCES.md"})));
    }
    dialog.exec();
}

void CApplication::ShowAbout() {
    m_boxes.Show({m_resources.Text(kTextAppName), FillText(m_resources.Text(kTextVersion), {Widen(kVersion)}),
                  BoxIcon::kInformation, BoxButtons::kOk});
}

void CApplication::Show() {
    if (m_options.fullScreen) {
        m_window->showFullScreen();
    } else {
        m_window->show();
    }
}

}  // namespace rlx

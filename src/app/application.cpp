#include "app/application.h"

#include "app/about.h"
#include "app/text_ids.h"
#include "app/toolkit_language.h"
#include "app/window_placement.h"
#include "base/number.h"
#include "base/text.h"
#include "map/ui/sun_details.h"
#include "places/text_ids.h"
#include "places/ui/city_chooser.h"
#include "shell/clock_settings.h"
#include "shell/command_ids.h"
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

namespace rlx {

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
    if (!m_options.quiet) new CWindowPlacement(*m_window, m_store->Registry());
    m_windowBoxes.SetOwner(m_window.get());
    m_cityCommands->SetWindow(*m_window);
    m_skins = std::make_unique<CSkinCommands>(SkinPorts{m_files, m_codec, m_resources, m_boxes}, m_folder->Root(),
                                              *m_settings, m_look, *m_window);
    connect(&m_look, &CLook::Changed, this, &CApplication::ApplyLook);
    m_skins->Load();
    AddScreens();
    RestoreScreen();
    MakeReminders();
    MakeCommands();
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
bool CApplication::MayAsk() const {
    const QString platform = QGuiApplication::platformName();
    return !m_options.quiet && platform != "offscreen" && platform != "minimal";
}

bool CApplication::StartLanguage() {
    const LanguagePorts ports{m_files, *m_folder, m_resources, m_boxes};
    m_languages.emplace(ports, *m_settings, MayAsk());
    if (!m_languages->Start(m_resources)) return false;
    SetToolkitLanguage(ToQString(m_resources.Text(kTextToolkitLanguage)));
    return true;
}

void CApplication::OpenCities() {
    const auto cityFile = m_folder->Path(u"\\cities.lst").value_or(m_folder->Root() / "cities.lst");
    m_cities.emplace(m_store->Objects(), m_files, m_boxes, m_resources, cityFile);
    m_cities->EnsureCreated();
    m_cityCommands.emplace(CCityCommands::Ports{m_store->Objects(), m_store->Registry(), m_files, m_boxes, m_clock,
                                                m_resources, *m_cities, *m_settings},
                           m_folder->Root(), cityFile);
}

CityChooser CApplication::Chooser() {
    return
        [this](QWidget* parent, const QString& title, CityIndex current) { return ChooseCity(parent, title, current); };
}

void CApplication::AddScreens() {
    m_feeds.emplace(CFeedWiring::Ports{m_files, m_store->Objects(), m_store->Registry(), m_boxes, m_clock, m_resources,
                                       *m_folder, m_look, *m_window});
    m_window->AddScreen(
        {kTextScreenClocks, QStringLiteral("clocks"), LookPicture::kClocks, [this] { return MakeClocks(); }});
    m_window->AddScreen({kTextScreenMap, QStringLiteral("map"), LookPicture::kMap, [this] { return MakeMap(); }});
    m_weatherIndex = m_window->AddScreen(
        {kTextScreenWeather, QStringLiteral("weather"), LookPicture::kWeather, [this] { return MakeWeather(); }});
    m_feeds->AddCurrencyScreen();
    m_window->AddScreen(
        {kTextScreenTools, QStringLiteral("tools"), LookPicture::kCommon, [this] { return MakeTools(); }});
    m_feeds->AddNewsScreen();
    connect(m_window.get(), &CMainWindow::ScreenShown, this, [this](int index) {
        // News is a guest: at the next start the window opens on the screen of the row that was shown before it.
        if (!m_window->IsInRow(index)) return;
        m_settings->WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kCurrentTab,
                               static_cast<std::uint32_t>(index));
    });
}

CScreen* CApplication::MakeClocks() {
    m_clocksScreen = new CClocksScreen(*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look, Chooser());
    connect(m_clocksScreen, &CClocksScreen::CitiesChanged, m_window.get(), &CMainWindow::RefreshScreens);
    m_clocksScreen->SetShowSunDetails([this](const CitySunDetails& details) { OpenSunDetails(details); });
    return m_clocksScreen;
}

CScreen* CApplication::MakeMap() {
    auto* map = new CMapScreen(*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look);
    map->SetShowInformation([this](CityIndex city) { ShowCityInformation(city); });
    return map;
}

void CApplication::ShowCityInformation(CityIndex city) {
    CCityTimes times(*m_cities, m_clock, m_resources, LoadClockSettings(*m_settings));
    const CitySunDetails details = SunDetailsOf(*m_cities, times, m_resources, city, m_clock.Now());
    if (m_boxes.Show(CityInformationBox(details, m_resources)) == BoxAnswer::kYes) OpenSunDetails(details);
}

void CApplication::OpenSunDetails(const CitySunDetails& details) {
    const bool twelve = m_settings->ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0) == 1;
    const DateTime now = m_clock.Now();
    CCityTimes times(*m_cities, m_clock, m_resources, LoadClockSettings(*m_settings));
    const Date date = CityDateOf(ParseInteger(details.effectiveGmt), times.Reference(now), now);
    ShowSunDetails(details, date, twelve ? ClockForm::kTwelve : ClockForm::kTwentyFour, m_resources, m_window.get());
}

CScreen* CApplication::MakeTools() {
    auto* tools = new CToolsScreen(*m_settings, m_resources, m_look);
    tools->AddPage(new CConverterTool(m_store->Objects(), *m_settings, m_resources, m_boxes, m_look));
    tools->AddPage(new CDialingTool(m_resources, m_look));
    tools->AddPage(new CClothingTool(m_resources, m_look));
    tools->AddPage(new CPackingPage(m_files, m_folder->Root(), m_resources, m_boxes, m_look));
    tools->AddPage(new CTipPage(m_resources, m_boxes, m_look));
    return tools;
}

CScreen* CApplication::MakeWeather() {
    const auto list = m_folder->Path(u"\\cities.wet").value_or(m_folder->Root() / "cities.wet");
    m_weather.emplace(m_store->Objects(), m_files, list);
    const WithForecastServer withServer = [this](const auto& update) { m_feeds->WithForecasts(update); };
    m_weatherScreen = new CWeatherScreen({*m_cities, m_clock, *m_settings, m_resources, m_boxes, m_look, m_files,
                                          *m_weather, m_folder->Root(), Chooser(), withServer});
    return m_weatherScreen;
}

void CApplication::UpdateWeather() {
    m_window->Screen(m_weatherIndex);
    m_weatherScreen->Update();
}

void CApplication::MakeReminders() {
    // They speak through the clocks, whichever screen is shown.
    if (m_clocksScreen == nullptr) m_window->Screen(0);
    m_reminderDuty.emplace(CReminderDuty::Ports{m_files, m_store->Registry(), *m_cities, m_clock, m_resources},
                           CReminderDuty::Run{m_options.store, m_options.home, m_options.now || m_options.bias});
    m_reminders.emplace(ReminderPorts{m_store->Registry(), *m_cities, m_clock, m_resources, m_boxes, Chooser()},
                        *m_reminderDuty, *m_clocksScreen, *m_window);
}

void CApplication::MakeCommands() {
    m_switches.emplace(*m_settings, m_commands, [this] { m_window->RefreshScreens(); });
    m_commands.Add(kCommandHomeCity, this, [this] { m_clocksScreen->ChangeCity(0); });
    m_commands.Add(kCommandReminders, this, [this] { m_reminders->Open(std::nullopt); });
    m_commands.Add(kCommandEditCities, this, [this] { m_cityCommands->Edit(); });
    m_commands.Add(kCommandRefreshRules, this, [this] { m_cityCommands->RefreshRules(); });
    m_commands.Add(kCommandUpdateWeather, this, [this] { UpdateWeather(); });
    m_commands
        .Add(kCommandFullScreen, this,
             [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); })
        ->setShortcuts({Qt::Key_F11});
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
    m_commands.Add(kCommandCredits, this, [this] { ShowCredits(m_resources, m_files, *m_folder, m_window.get()); });
    m_commands.Add(kCommandAbout, this, [this] { ShowAbout(m_resources, m_boxes); });
    m_commands.Add(kCommandExit, this, [this] { m_window->close(); })->setShortcut(QKeySequence::Quit);
    if (const auto entries = m_resources.Menu(kMenuMain)) FillMenu(m_window->Menu(), *entries, m_commands);
    for (const int command : {kCommandFullScreen, kCommandExit})
        m_window->addAction(m_commands.Find(command));
    connect(m_window.get(), &CMainWindow::AboutToShowMenu, this, [this] { m_switches->UpdateTicks(); });
}

void CApplication::RestoreScreen() {
    const std::uint32_t stored = m_settings->ReadDwordOr(keys::kRoamlytix, names::kCurrentTab, 0);
    const int index = stored < static_cast<std::uint32_t>(m_window->Count()) ? static_cast<int>(stored) : 0;
    const int shown = m_window->IsInRow(index) ? index : 0;
    m_look.FetchAhead(m_window->Entry(shown).ground, m_window->LikelyContentSize(), m_window->devicePixelRatioF());
    m_window->ShowScreen(shown);
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

void CApplication::AskAtStart() {
    const QString title = ToQString(m_resources.Text(kTextChooseHomeCity));
    const auto choose = [&](CityIndex proposed) { return ChooseCity(m_window.get(), title, proposed); };
    if (const auto home = m_cityCommands->AskHomeCity(choose)) m_clocksScreen->StoreCity(0, *home);
    m_cityCommands->TellOldRules();
}

void CApplication::Show() {
    m_window->AskFirst([this] {
        if (MayAsk()) AskAtStart();
        m_reminders->TellMissed();
    });
    if (m_options.fullScreen) {
        m_window->showFullScreen();
    } else {
        m_window->show();
    }
    m_reminders->Start();
}

}  // namespace rlx

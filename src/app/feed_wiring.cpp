#include "app/feed_wiring.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <utility>

#include "app/network_names.h"
#include "base/text.h"
#include "currency/text_ids.h"
#include "feeds/feed_address.h"
#include "feeds/http_url.h"
#include "feeds/news_fetch.h"
#include "feeds/text_ids.h"
#include "platform/posix/machine_connections.h"
#include "platform/posix/machine_info.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/program_paths.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "uikit/template_dialog.h"
#include "weather/text_ids.h"

namespace rlx {

namespace {

FeedDevice ThisDevice() {
    const MachineInfo machine = ReadMachineInfo();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize whole = screen == nullptr ? QSize() : screen->size() * screen->devicePixelRatio();
    const QSize free = screen == nullptr ? QSize() : screen->availableSize() * screen->devicePixelRatio();
    FeedDevice device;
    device.osMajor = machine.osMajor;
    device.osMinor = machine.osMinor;
    device.processor = machine.processor;
    device.appVersion = Widen(RLX_VERSION);
    device.screen = {whole.width(), whole.height()};
    device.workArea = {free.width(), free.height()};
    return device;
}

/// One update of the weather.
class CForecastServer : public IForecastServer {
public:
    CForecastServer(const FeedPorts& ports, CProgressRequest& progress, std::u16string url, CFeedParameters parameters)
        : m_client(ports, Confirmation::kOnce),
          m_progress(progress),
          m_url(std::move(url)),
          m_parameters(std::move(parameters)) {}

    FeedReply Ask(const std::u16string& feedName, const QSize& screen) override {
        const PixelSize area{screen.width(), screen.height()};
        return m_client.PostFeedRequest(m_url, m_parameters.WeatherParameters(feedName, area), false);
    }
    void SetSubject(const QString& text) override { m_progress.SetSubject(text); }
    bool Cancelled() const override { return m_progress.Cancelled(); }

private:
    CFeedClient m_client;
    CProgressRequest& m_progress;
    const std::u16string m_url;
    const CFeedParameters m_parameters;
};

}  // namespace

CFeedWiring::CFeedWiring(const Ports& ports)
    : m_ports(ports),
      m_http(ProgramFolders({}).executableFolder),
      m_list(LoadRatesList(ports.files, ports.folder.Root())),
      m_currencies(ports.store),
      m_newsPage(ports.registry, ports.files, ports.resources, ports.folder.Root()) {
    m_currencies.EnsureCreated(m_list);
}

void CFeedWiring::AddCurrencyScreen() {
    m_currencyIndex = m_ports.window.AddScreen({kTextScreenCurrencies, QStringLiteral("currency"), LookPicture::kCommon,
                                                [this] { return m_currencyScreen = MakeCurrencyScreen(); }});
}

CCurrencyScreen* CFeedWiring::MakeCurrencyScreen() {
    const CCurrencyScreen::Source source{m_currencies, m_ports.registry,
                                         ShippedRatesDate(m_ports.files, m_ports.folder.Root())};
    auto* screen = new CCurrencyScreen(source, m_ports.clock, m_ports.resources, m_ports.look);
    QObject::connect(screen, &CCurrencyScreen::UpdateChosen, [this] { UpdateRates(); });
    return screen;
}

void CFeedWiring::AddNewsScreen() {
    const auto make = [this] { return m_newsScreen = MakeNewsScreen(); };
    m_newsIndex =
        m_ports.window.AddScreen({kTextScreenNews, QStringLiteral("news"), LookPicture::kCommon, make}, false);
    QObject::connect(&m_ports.window, &CMainWindow::NewsChosen, [this] { ShowNews(); });
    ShowNewsState();
}

CNewsScreen* CFeedWiring::MakeNewsScreen() {
    const auto openLink = [](const QUrl& link) { QDesktopServices::openUrl(link); };
    auto* screen =
        new CNewsScreen(m_newsPage, {m_ports.clock, m_ports.resources, m_ports.boxes, m_ports.look}, openLink);
    QObject::connect(screen, &CNewsScreen::FetchChosen, [this] { FetchNews(); });
    QObject::connect(screen, &CNewsScreen::PageShown, [this] { ShowNewsState(); });
    QObject::connect(screen, &CNewsScreen::BackChosen, [this] { m_ports.window.ShowScreen(m_cameFrom); });
    return screen;
}

void CFeedWiring::ShowNews() {
    if (m_ports.window.CurrentIndex() != m_newsIndex) m_cameFrom = m_ports.window.CurrentIndex();
    m_ports.window.ShowScreen(m_newsIndex);
}

void CFeedWiring::ShowNewsState() {
    m_ports.window.SetFreshNews(m_newsPage.State().newNews);
    if (m_newsScreen != nullptr) m_newsScreen->Refresh();
}

CFeedParameters CFeedWiring::Parameters() {
    return {m_ports.registry, ThisDevice(), [this, asked = false]() mutable {
                // An empty name is an answer too.
                if (!std::exchange(asked, true)) AskOwnerName();
            }};
}

void CFeedWiring::WithServer(int title, const Request& request) {
    const std::u16string url = FeedServerAddress(m_ports.files, m_ports.folder.Root());
    if (url.empty()) {
        m_ports.boxes.Show(ErrorBox(m_ports.resources, m_ports.resources.Text(kTextFeedServerMissing)));
        return;
    }
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    CNetworkNames names;
    CMachineConnections connections(address ? address->host : std::string(),
                                    m_ports.resources.Text(kTextLoopbackNetwork),
                                    [&names](const std::string& network) { return names.NameOf(network); });
    CProgressRequest progress(m_http, m_ports.resources, &m_ports.window, ToQString(m_ports.resources.Text(title)));
    request({progress, connections, m_ports.registry, m_ports.boxes, m_ports.resources}, progress, url);
    ShowNewsState();
}

void CFeedWiring::WithForecasts(const std::function<void(IForecastServer&)>& update) {
    WithServer(kTextUpdatingWeather,
               [&](const FeedPorts& ports, CProgressRequest& progress, const std::u16string& url) {
                   CForecastServer server(ports, progress, url, Parameters());
                   update(server);
               });
}

void CFeedWiring::UpdateRates() {
    WithServer(kTextUpdatingRates, [this](const FeedPorts& ports, CProgressRequest&, const std::u16string& url) {
        CRatesUpdate update(ports, m_ports.store, m_list);
        const CFeedParameters builder = Parameters();
        m_ports.window.Screen(m_currencyIndex);
        const RatesLayout layout = m_currencyScreen->Layout();
        const std::u16string parameters = builder.CurrencyParameters(builder.HomeName(), layout.workArea);
        m_currencyScreen->TakeUpdate(update.Update(m_currencies, url, parameters, layout));
    });
}

void CFeedWiring::FetchNews() {
    NewsFetchResult result;
    WithServer(kTextFetchingNews, [&](const FeedPorts& ports, CProgressRequest&, const std::u16string& url) {
        CNewsFetch fetch(ports, m_ports.files, m_ports.clock, m_ports.folder.Root());
        result = fetch.Fetch(url, Parameters().NewsParameters());
    });
    // Somebody else's page instead of a reply, as in a hotel; rates and weather say so by themselves.
    if (result.outcome == FeedOutcome::kNotUnderstood)
        m_ports.boxes.Show(ErrorBox(m_ports.resources, m_ports.resources.Text(kTextSyncFailed)));
    if (!result.saved) return;
    if (m_ports.window.CurrentIndex() == m_newsIndex) {
        m_newsScreen->Entered();
    } else {
        ShowNews();
    }
}

void CFeedWiring::AskOwnerName() {
    CRegistryStore settings(m_ports.registry);
    CTemplateDialog dialog(m_ports.resources.Dialog(kDialogOwnerName).value_or(DialogTemplate{}), &m_ports.window);
    dialog.setObjectName("ownerName");
    auto* field = dialog.Control<QLineEdit>(kControlOwnerName);
    if (field == nullptr) return;
    constexpr int kLongestName = 383;
    field->setMaxLength(kLongestName);
    field->setText(ToQString(settings.ReadString(RootOf(keys::kOwner), keys::kOwner, names::kOwnerName)));
    if (dialog.exec() != QDialog::Accepted) return;
    settings.WriteString(RootOf(keys::kOwner), keys::kOwner, names::kOwnerName, FromQString(field->text().trimmed()));
}

}  // namespace rlx

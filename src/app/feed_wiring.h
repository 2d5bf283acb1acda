#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "app/main_window.h"
#include "currency/ui/currency_screen.h"
#include "feeds/feed_client.h"
#include "feeds/feed_parameters.h"
#include "news/news_page.h"
#include "news/ui/news_screen.h"
#include "platform/file_system.h"
#include "platform/object_store.h"
#include "platform/posix/http_module.h"
#include "shell/application_folder.h"
#include "shell/resources.h"
#include "uikit/progress_request.h"
#include "weather/ui/forecast_server.h"

namespace rlx {

/// The part of the composition root that brings the feed server's data to the screens. User-interface thread.
class CFeedWiring {
public:
    /// What it takes from the application; all of it outlives the wiring.
    struct Ports {
        IFileSystem& files;
        IObjectStore& store;
        IRegistry& registry;
        IMessageBoxes& boxes;
        const IClock& clock;
        const CResources& resources;
        const CApplicationFolder& folder;
        const CLook& look;
        CMainWindow& window;
    };

    explicit CFeedWiring(const Ports& ports);

    /// Puts the screen into the row.
    void AddCurrencyScreen();

    /// Lets the title bar's button lead to the News page. Comes after the screens of the row.
    void AddNewsScreen();

    /// Lets the Weather screen talk to the feed server; what it asks during one call is one update, for which the user
    /// is asked for the connection, and perhaps the owner's name, once.
    void WithForecasts(const std::function<void(IForecastServer&)>& update);

    void UpdateRates();
    void FetchNews();
    void ShowNews();
    void AskOwnerName();

    /// Lets `request` talk to the feed server behind a progress box of that title; the address is that of "adrs.cfg".
    /// Says so when there is none. Afterwards the window shows whether there is news.
    using Request = std::function<void(const FeedPorts& ports, CProgressRequest& progress, const std::u16string& url)>;
    void WithServer(int title, const Request& request);

    CFeedParameters Parameters();

private:
    CCurrencyScreen* MakeCurrencyScreen();
    CNewsScreen* MakeNewsScreen();
    void ShowNewsState();

    Ports m_ports;
    CHttpModule m_http;
    CurrencyList m_list;
    CCurrencyDatabase m_currencies;
    CNewsPage m_newsPage;
    CCurrencyScreen* m_currencyScreen = nullptr;  ///< both owned by the window, and nothing until they are made
    CNewsScreen* m_newsScreen = nullptr;
    int m_currencyIndex = -1;
    int m_newsIndex = -1;
    int m_cameFrom = 0;
};

}  // namespace rlx

#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "feeds/currency_database.h"
#include "feeds/feed_client.h"
#include "feeds/feed_device.h"
#include "feeds/feed_parameters.h"
#include "feeds/rates_list.h"

namespace rlx {

/// How the calling screen lies, in pixels: it decides the form of the update label.
struct RatesLayout {
    PixelSize workArea;
    int layoutHeight = 0;
};

struct RatesUpdateResult {
    FeedOutcome outcome = FeedOutcome::kFailed;
    bool stored = false;                  ///< the reply's rates are in the database
    std::size_t rates = 0;                ///< how many currencies got a rate
    std::optional<std::u16string> label;  ///< the new update label, when the date of the rates is another one now
};

/// The update label: "Last update" or its short form, the date, a blank.
std::u16string RatesUpdateLabel(const ITexts& texts, const RatesLayout& layout, const Date& date);

/// The update command of the currency screen: posts the currency request and stores what comes. All rates of a reply
/// are stored together with their day and source, or not at all; a failure leaves the last ones. For that the registry
/// and the store must be of one device.
class CRatesUpdate {
public:
    CRatesUpdate(const FeedPorts& ports, IObjectStore& store, const CurrencyList& list);

    /// `parameters`: what `CFeedParameters::CurrencyParameters` made. A failure was reported when this returns.
    RatesUpdateResult Update(CCurrencyDatabase& database, std::u16string_view url, std::u16string_view parameters,
                             const RatesLayout& layout, IHttpObserver* observer = nullptr);

private:
    /// How many rates were stored; nothing when the device refuses.
    std::optional<std::size_t> Store(CCurrencyDatabase& database, std::u16string_view reply, std::u16string_view url);
    bool Remember(CCurrencyDatabase& database, std::u16string_view url);
    void ShowError(int text);

    FeedPorts m_ports;
    IObjectStore& m_store;
    const CurrencyList& m_list;
    CFeedClient m_client;
};

}  // namespace rlx

#include "feeds/rates_update.h"

#include "base/iso_day.h"
#include "base/text.h"
#include "feeds/http_url.h"
#include "feeds/rates_reply.h"
#include "feeds/text_ids.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

/// A layout higher than this has room for the long label.
constexpr int kRoomForLongLabel = 244;

}  // namespace

std::u16string RatesUpdateLabel(const ITexts& texts, const RatesLayout& layout, const Date& date) {
    const bool longForm = layout.workArea.height > layout.workArea.width || layout.layoutHeight > kRoomForLongLabel;
    return texts.Text(longForm ? kTextLastUpdate : kTextUpdatedShort) + u" " + ShownDay(date) + u" ";
}

CRatesUpdate::CRatesUpdate(const FeedPorts& ports, IObjectStore& store, const CurrencyList& list)
    : m_ports(ports), m_store(store), m_list(list), m_client(ports) {}

RatesUpdateResult CRatesUpdate::Update(CCurrencyDatabase& database, std::u16string_view url,
                                       std::u16string_view parameters, const RatesLayout& layout,
                                       IHttpObserver* observer) {
    const std::optional<Date> before = database.LastModifiedDate();
    const FeedReply reply = m_client.PostFeedRequest(url, parameters, false, observer);
    RatesUpdateResult result;
    result.outcome = reply.outcome;
    if (reply.outcome == FeedOutcome::kCancelled) return result;
    if (reply.body.empty()) {
        ShowError(kTextSyncFailed);
        return result;
    }
    const std::optional<std::size_t> rates = Store(database, reply.body, url);
    if (!rates) {
        ShowError(kTextRatesNotSaved);
        return result;
    }
    result.stored = true;
    result.rates = *rates;
    const std::optional<Date> after = database.LastModifiedDate();
    if (after && after != before) result.label = RatesUpdateLabel(m_ports.texts, layout, *after);
    return result;
}

std::optional<std::size_t> CRatesUpdate::Store(CCurrencyDatabase& database, std::u16string_view reply,
                                               std::u16string_view url) {
    std::size_t written = 0;
    const bool stored = m_store.Transact([&] {
        for (const RateChange& change : ParseRatesReply(reply, m_list)) {
            if (!database.HasName(change.name)) continue;
            if (!database.WriteRate(change.name, change.code, change.rate)) return false;
            ++written;
        }
        return written == 0 || Remember(database, url);
    });
    return stored ? std::optional(written) : std::nullopt;
}

bool CRatesUpdate::Remember(CCurrencyDatabase& database, std::u16string_view url) {
    CRegistryStore settings(m_ports.registry);
    const auto write = [&](std::u16string_view name, std::u16string_view text) {
        return settings.WriteString(RegistryRoot::kLocalMachine, keys::kCurrencies, name, text);
    };
    const std::optional<Date> date = database.LastModifiedDate();
    const std::optional<HttpUrl> address = ParseHttpUrl(url);
    return (!date || write(names::kRatesDate, IsoDay(*date))) &&
           (!address || write(names::kRatesSource, Widen(address->host)));
}

void CRatesUpdate::ShowError(int text) {
    m_ports.boxes.Show(
        {m_ports.texts.Text(kTextError), m_ports.texts.Text(text), BoxIcon::kExclamation, BoxButtons::kOk});
}

}  // namespace rlx

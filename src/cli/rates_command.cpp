#include <algorithm>
#include <memory>

#include "base/iso_day.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/feed_session.h"
#include "currency/currency_convert.h"
#include "currency/text_ids.h"
#include "feeds/currency_database.h"
#include "feeds/rates_origin.h"
#include "feeds/rates_update.h"
#include "feeds/text_ids.h"
#include "shell/text_ids.h"
#include "tools/converter/text_ids.h"
#include "weather/text_ids.h"

namespace rlx::cli {

namespace {

struct ConvertOptions {
    double amount = 0;
    std::string from;
    std::string to;
};

/// The currency database, built from the list when the store has none yet.
class CRates {
public:
    explicit CRates(CSession& session)
        : m_session(session),
          m_list(LoadRatesList(session.Files(), session.Folder().Root())),
          m_database(session.ObjectStore()) {
        m_made = m_database.EnsureCreated(m_list);
    }

    /// False when there is no currency at all, which was then said.
    bool Check() {
        if (!m_made) {
            m_session.Fail(m_session.Text(kTextFileNotSaved, u"rlxCurrencies"));
        } else if (m_database.Count() == 0) {
            m_session.Fail(m_session.Text(kTextNoRates));
        } else {
            return true;
        }
        return false;
    }

    CCurrencyDatabase& Database() { return m_database; }
    const CurrencyList& List() const { return m_list; }

private:
    CSession& m_session;
    CurrencyList m_list;
    CCurrencyDatabase m_database;
    bool m_made = false;
};

void ShowRates(CSession& session, CAnswer& answer, CRates& rates) {
    Json all = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const CurrencyEntry& entry : rates.Database().All()) {
        all.push_back({{"code", ToJson(entry.code)}, {"name", ToJson(entry.name)}, {"rate", ToJson(entry.rate)}});
        const bool known = RateValue(entry.rate).has_value();
        rows.push_back({entry.code, known ? entry.rate : session.Text(kTextRateUnknown), entry.name});
    }
    answer.Set("rates", std::move(all));
    answer.Table(rows);
}

void ShowOrigin(CSession& session, CAnswer& answer) {
    const RatesOrigin origin =
        OriginOfRates(session.Registry(), ShippedRatesDate(session.Files(), session.Folder().Root()));
    const std::u16string date = origin.date ? ShownDay(*origin.date) : std::u16string();
    answer.Set("updated", ToJson(date));
    answer.Set("source", ToJson(origin.source));
    // The server does not say of which day its rates are, only when they came is known.
    const int words = origin.source.empty() ? kTextRatesOf : kTextUpdatedAt;
    std::u16string line = session.Text(words, date.empty() ? session.Text(kTextUnknown) : date);
    line += u". " + session.Text(kTextSource, origin.source.empty() ? session.Text(kTextRatesShipped) : origin.source);
    if (AreRatesStale(origin.date, session.Clock().Now().date)) line += u". " + session.Text(kTextStale);
    answer.Line(line);
}

int Show(CSession& session, CAnswer& answer) {
    CRates rates(session);
    if (!rates.Check()) return kFailed;
    ShowRates(session, answer, rates);
    ShowOrigin(session, answer);
    return kDone;
}

int Update(CSession& session, CAnswer& answer) {
    CRates rates(session);
    const auto url = rates.Check() ? FeedAddress(session) : std::nullopt;
    if (!url) return kFailed;
    CFeedSession feed(session, *url);
    CRatesUpdate update(feed.Ports(), session.ObjectStore(), rates.List());
    const CFeedParameters builder = FeedParameters(session);
    const PixelSize area = builder.Device().workArea;
    const auto result = update.Update(rates.Database(), *url, builder.CurrencyParameters(builder.HomeName(), area),
                                      {area, area.height});
    ShowRates(session, answer, rates);
    ShowOrigin(session, answer);
    if (result.stored && !session.KeepsChanges()) return session.Fail(session.Text(kTextRatesNotSaved));
    return result.stored ? kDone : kFailed;
}

/// By code, else by name.
std::optional<CurrencyEntry> FindCurrency(CSession& session, const CurrencyList& all, const std::string& word) {
    const std::u16string text = FromUtf8(word);
    for (const auto member : {&CurrencyEntry::code, &CurrencyEntry::name}) {
        const auto fits = [&](const CurrencyEntry& entry) { return EqualIgnoringCase(entry.*member, text); };
        const auto found = std::find_if(all.begin(), all.end(), fits);
        if (found != all.end()) return *found;
    }
    session.Fail(session.Text(kTextNoSuchCurrency, text));
    return std::nullopt;
}

int ConvertAmount(CSession& session, CAnswer& answer, const ConvertOptions& options) {
    CRates rates(session);
    if (!rates.Check()) return kFailed;
    const CurrencyList all = rates.Database().All();
    const auto from = FindCurrency(session, all, options.from);
    const auto to = from ? FindCurrency(session, all, options.to) : std::nullopt;
    if (!to) return kFailed;
    for (const CurrencyEntry& each : {*from, *to}) {
        if (!RateValue(each.rate)) return session.Fail(each.code + u": " + session.Text(kTextRateUnknown));
    }
    const auto result = Convert(options.amount, from->rate, to->rate);
    if (!result) return session.Fail(session.Text(kTextInfinite));
    answer.Set("result", ToJson(*result));
    answer.Set("text", ToJson(FormatAmount(*result)));
    answer.Line(FormatAmount(*result) + u" " + to->code);
    return kDone;
}

}  // namespace

void DeclareRates(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(0, 1);
    app.callback([setAction, &app] {
        if (app.get_subcommands().empty()) setAction(Show);
    });
    DeclareSub(app, "update", "fetches new rates", setAction, Update);
    auto options = std::make_shared<ConvertOptions>();
    CLI::App* convert = DeclareSub(app, "convert", "an amount in another currency", setAction,
                                   [options](CSession& s, CAnswer& a) { return ConvertAmount(s, a, *options); });
    const auto takeAmount = [options](const std::string& word) {
        const auto amount = ParseAmount(FromUtf8(word));
        if (!amount) throw CLI::ValidationError("AMOUNT", "\"" + word + "\" is not an amount");
        options->amount = *amount;
    };
    convert->add_option_function<std::string>("AMOUNT", takeAmount, "such as 12.50")->required();
    convert->add_option("FROM", options->from, "code or name of a currency")->required();
    convert->add_option("TO", options->to, "code or name of a currency")->required();
}

}  // namespace rlx::cli

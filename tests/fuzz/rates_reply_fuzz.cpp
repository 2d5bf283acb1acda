#include "base/text.h"
#include "currency/currency_convert.h"
#include "feeds/http_url.h"
#include "feeds/rates_reply.h"
#include "feeds/reply_headers.h"
#include "fuzz/target.h"

// A reply's raw headers and body, as any server may send them.
void Try(std::string_view bytes) {
    using namespace rlx;
    static const CurrencyList list = {{u"EUR", u"Euro", u"1"}, {u"A", u"Aa", u"2"}, {u"A", u"Ab", u"3"}};
    const std::u16string text = Widen(bytes);
    for (const RateChange& change : ParseRatesReply(text, list)) {
        FailIf(change.name == u"Aa");
        const auto result = Convert(1, change.rate, u"1");
        if (result) FormatAmount(*result);
    }
    const ReplyHeaders headers = ReadReplyHeaders(text);
    FailIf(headers.serverCode.size() > 4);
    const auto location = RedirectLocation(text);
    const auto url = ParseHttpUrl(location.value_or(text));
    FailIf(url && (url->host.empty() || url->objectPath.find('\r') != std::string::npos));
}

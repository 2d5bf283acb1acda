#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/text.h"
#include "currency/currency_convert.h"
#include "feeds/http_url.h"
#include "feeds/rates_reply.h"
#include "feeds/reply_headers.h"

// A reply's raw headers and body, as any server may send them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    static const CurrencyList list = {{u"EUR", u"Euro", u"1"}, {u"A", u"Aa", u"2"}, {u"A", u"Ab", u"3"}};
    const std::u16string text = Widen({reinterpret_cast<const char*>(data), size});
    for (const RateChange& change : ParseRatesReply(text, list)) {
        if (change.name == u"Aa") std::abort();
        const auto result = Convert(1, change.rate, u"1");
        if (result) FormatAmount(*result);
    }
    const ReplyHeaders headers = ReadReplyHeaders(text);
    if (headers.serverCode.size() > 4) std::abort();
    const auto location = RedirectLocation(text);
    const auto url = ParseHttpUrl(location.value_or(text));
    if (url && (url->host.empty() || url->objectPath.find('\r') != std::string::npos)) std::abort();
    return 0;
}

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "feedserver/feed_question.h"
#include "feedserver/news_item.h"
#include "feedserver/rates_check.h"
#include "feedserver/rates_table.h"
#include "feedserver/server_config.h"

// Any bytes as what the server reads: a source of rates or news, its configuration, a client's question.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const ParsedRates& parsed : {ParseEcbRates(bytes), ParseDailyRates(bytes)}) {
        if (parsed.table.has_value() != parsed.fault.empty()) std::abort();
        if (!parsed.table) continue;
        CheckRates(*parsed.table, nullptr, {2026, 11, 22});
        for (const auto& [code, rate] : parsed.table->perDollar) {
            if (code.size() != 3 || RateText(rate).find_first_not_of("0123456789.") != std::string::npos) std::abort();
        }
    }
    const ParsedNews news = ParseRssNews(bytes);
    if (news.item && news.item->html.size() > kMaxNewsBytes) std::abort();
    ParseServerConfig(bytes);
    ParseListenAddress(bytes);
    ParseFeedQuestion(bytes);
    return 0;
}

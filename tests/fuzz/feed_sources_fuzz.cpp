#include "feedserver/feed_question.h"
#include "feedserver/news_item.h"
#include "feedserver/rates_check.h"
#include "feedserver/rates_table.h"
#include "feedserver/server_config.h"
#include "fuzz/target.h"

// Any bytes as what the server reads: a source of rates or news, its configuration, a client's question.
void Try(std::string_view bytes) {
    using namespace rlx;
    for (const ParsedRates& parsed : {ParseEcbRates(bytes), ParseDailyRates(bytes)}) {
        FailIf(parsed.table.has_value() != parsed.fault.empty());
        if (!parsed.table) continue;
        CheckRates(*parsed.table, nullptr, {2026, 11, 22});
        for (const auto& [code, rate] : parsed.table->perDollar) {
            FailIf(code.size() != 3 || RateText(rate).find_first_not_of("0123456789.") != std::string::npos);
        }
    }
    const ParsedNews news = ParseRssNews(bytes);
    FailIf(news.item && news.item->html.size() > kMaxNewsBytes);
    ParseServerConfig(bytes);
    ParseListenAddress(bytes);
    ParseFeedQuestion(bytes);
}

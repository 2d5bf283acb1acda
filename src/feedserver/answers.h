#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "feedserver/feed_question.h"
#include "feedserver/news_item.h"
#include "feedserver/rates_table.h"

namespace rlx {

/// Codes of the protocol.
enum ServerCode {
    kInvalidRequest = 1001,
    kServerError = 1004,
    kGood = 1005,
    kCityUnknown = 1006,
    kNothingNewer = 1007
};

/// All that the server knows at a moment. Never changed once it is published.
struct Knowledge {
    std::map<std::string, double> rates;  ///< units per US dollar, the newest that is known of each currency
    std::optional<Date> ratesDate;        ///< of the newest source
    std::string ratesSource;
    std::optional<NewsItem> news;
};

/// The knowledge in force. Any thread.
class CKnowledgeBoard {
public:
    std::shared_ptr<const Knowledge> Get() const;
    void Publish(Knowledge knowledge);

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<const Knowledge> m_knowledge = std::make_shared<const Knowledge>();
};

/// What goes back to a client.
struct FeedAnswer {
    int code = kInvalidRequest;  ///< of the protocol
    std::string body;            ///< with 1005, and of an unknown city with 1006
    std::string newsId;          ///< of the latest page; "0" when there is none
};

/// The weather is not part of the knowledge: every city is unknown here.
FeedAnswer AnswerQuestion(const FeedQuestion& question, const Knowledge& knowledge);

}  // namespace rlx

#include "base/iso_day.h"
#include "base/text.h"
#include "feedserver/http_answer.h"

namespace rlx {

ServedAnswer PlainAnswer(unsigned status, std::string body) {
    return {status, std::move(body), {{"Content-Type", "text/plain; charset=utf-8"}}};
}

ServedAnswer HealthAnswer(const Knowledge& knowledge, const CWeatherSource* weather) {
    std::string body = "rates " + std::to_string(knowledge.rates.size());
    if (knowledge.ratesDate) body += " of " + Narrow(IsoDay(*knowledge.ratesDate)) + " from " + knowledge.ratesSource;
    body += "\nnews " + (knowledge.news ? knowledge.news->id : std::string("none")) + "\n";
    if (weather != nullptr) body += weather->Health() + "\n";
    return PlainAnswer(knowledge.rates.empty() ? 503 : 200, std::move(body));
}

ServedAnswer ServedFeedAnswer(FeedAnswer answer, const std::string& session) {
    ServedAnswer out{200, std::move(answer.body), {}, answer.code};
    // Clients find these by their place: the header behind the code begins with a capital C.
    out.headers = {{"sessionId", session + "."},
                   {"ServerMSG", std::to_string(answer.code)},
                   {"Content-Type", "text/html; charset=iso-8859-1"},
                   {"newsid", answer.newsId},
                   {"Cache-Control", "no-store"}};
    return out;
}

}  // namespace rlx

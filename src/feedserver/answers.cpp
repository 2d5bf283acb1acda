#include "feedserver/answers.h"

#include <utility>

namespace rlx {

std::shared_ptr<const Knowledge> CKnowledgeBoard::Get() const {
    const std::lock_guard lock(m_mutex);
    return m_knowledge;
}

void CKnowledgeBoard::Publish(Knowledge knowledge) {
    auto fresh = std::make_shared<const Knowledge>(std::move(knowledge));
    const std::lock_guard lock(m_mutex);
    m_knowledge = std::move(fresh);
}

FeedAnswer AnswerQuestion(const FeedQuestion& question, const Knowledge& knowledge) {
    FeedAnswer answer{kInvalidRequest, {}, knowledge.news ? knowledge.news->id : "0"};
    switch (question.job) {
        case FeedJob::kInvalid:
            break;
        case FeedJob::kRates:
            answer.code = knowledge.rates.empty() ? kServerError : kGood;
            for (const auto& [code, rate] : knowledge.rates)
                answer.body += code + "_" + RateText(rate) + "#";
            break;
        case FeedJob::kWeather:
            answer.code = kCityUnknown;
            break;
        case FeedJob::kNews:
            if (!knowledge.news) {
                answer.code = kServerError;
            } else if (question.newsId == knowledge.news->id) {
                answer.code = kNothingNewer;
            } else {
                answer.code = kGood;
                answer.body = knowledge.news->html;
            }
            break;
    }
    return answer;
}

}  // namespace rlx

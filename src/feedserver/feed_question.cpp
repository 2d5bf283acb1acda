#include "feedserver/feed_question.h"

#include <algorithm>
#include <optional>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

namespace {

/// Takes the value between the front and the next `mark` off the text, with the mark.
std::optional<std::string> TakeUpTo(std::string_view& text, std::string_view mark) {
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) return std::nullopt;
    std::string value(text.substr(0, at));
    text.remove_prefix(at + mark.size());
    return value;
}

bool IsSize(std::string_view text) {
    const std::u16string wide = Widen(text);
    const std::size_t cross = wide.find(u'x');
    return cross != std::u16string::npos && ParseWholeInteger(wide.substr(0, cross), 0, 100'000) &&
           ParseWholeInteger(wide.substr(cross + 1), 0, 100'000);
}

FeedJob JobOf(std::string_view number) {
    if (number == "110") return FeedJob::kRates;
    if (number == "111") return FeedJob::kWeather;
    return number == "115" ? FeedJob::kNews : FeedJob::kInvalid;
}

}  // namespace

FeedQuestion ParseFeedQuestion(std::string_view body) {
    const bool begins = body.starts_with("did=");
    if (!begins && !TakeUpTo(body, "&did=")) return {};
    FeedQuestion question;
    std::string_view rest = body;
    if (!TakeUpTo(rest, "&jc=")) return {};
    std::optional<std::string> job = TakeUpTo(rest, "&os=wince");
    if (!job) return {};
    question.job = JobOf(std::string_view(*job).substr(0, 3));
    const std::string_view argument = std::string_view(*job).substr(std::min<std::size_t>(3, job->size()));
    if (question.job == FeedJob::kWeather && argument.starts_with("&c='") && argument.ends_with("'") &&
        argument.size() >= 5) {
        question.city = argument.substr(4, argument.size() - 5);
    } else if (question.job == FeedJob::kNews && argument.starts_with("&cnid=")) {
        question.newsId = argument.substr(6);
    } else if (question.job != FeedJob::kRates || !argument.empty()) {
        return {};
    }
    for (const std::string_view mark : {"&gid=", "&appver=", "&home=", "&scrsize="}) {
        if (!TakeUpTo(rest, mark)) return {};
    }
    const std::optional<std::string> screen = TakeUpTo(rest, "&wasize=");
    if (question.job != FeedJob::kRates && rest.ends_with("&'0'")) rest.remove_suffix(4);
    return screen && IsSize(*screen) && IsSize(rest) ? question : FeedQuestion();
}

}  // namespace rlx

#include "weather/weather_update.h"

#include <algorithm>
#include <utility>

#include "feeds/text_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "weather/text_ids.h"
#include "weather/weather_places.h"

namespace rlx {
namespace {

PlaceUpdate UpdateOf(SaveOutcome outcome) {
    switch (outcome) {
        case SaveOutcome::kSaved:
            return PlaceUpdate::kSaved;
        case SaveOutcome::kOlder:
            return PlaceUpdate::kOlder;
        case SaveOutcome::kRefused:
            return PlaceUpdate::kNotSaved;
        case SaveOutcome::kNothing:
            return PlaceUpdate::kUnknown;
        case SaveOutcome::kBroken:
        case SaveOutcome::kOtherPlace:
            break;
    }
    return PlaceUpdate::kBroken;
}

}  // namespace

CWeatherUpdate::CWeatherUpdate(CWeatherStore& store, Request request, IMessageBoxes& boxes, const ITexts& texts)
    : m_store(store), m_request(std::move(request)), m_boxes(boxes), m_texts(texts) {}

std::vector<PlaceUpdate> CWeatherUpdate::Run(const std::vector<std::u16string>& places,
                                             const std::function<DateTime()>& utcNow,
                                             IWeatherUpdateObserver* observer) {
    std::vector<PlaceUpdate> results(places.size(), PlaceUpdate::kNotAsked);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto before = std::find(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(i), places[i]);
        const auto twin = static_cast<std::size_t>(before - places.begin());
        if (twin < i) {
            results[i] = results[twin];
            continue;
        }
        if (observer && observer->Cancelled()) return results;
        if (observer) observer->OnPlace(places[i], i + 1, places.size());
        results[i] = UpdatePlace(places[i], utcNow);
        if (observer && observer->Cancelled()) {
            if (results[i] == PlaceUpdate::kNoReply) results[i] = PlaceUpdate::kNotAsked;
            return results;
        }
        if (i == 0 && results[i] == PlaceUpdate::kNoReply) break;
    }
    Report(places, results);
    return results;
}

PlaceUpdate CWeatherUpdate::UpdatePlace(const std::u16string& place, const std::function<DateTime()>& utcNow) {
    const auto reply = m_request(m_store.FeedName(place));
    if (reply.outcome != FeedOutcome::kAnswered) return PlaceUpdate::kNoReply;
    if (reply.body.empty()) return PlaceUpdate::kEmpty;
    return UpdateOf(m_store.Save(place, reply.body, utcNow()).outcome);
}

void CWeatherUpdate::Report(const std::vector<std::u16string>& places, const std::vector<PlaceUpdate>& results) {
    const auto namesOf = [&](PlaceUpdate kind) {
        std::u16string names;
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (results[i] == kind) names += (names.empty() ? u"" : u", ") + FallbackFeedName(places[i]);
        }
        return names;
    };
    const auto isEmpty = [](PlaceUpdate each) { return each == PlaceUpdate::kNoReply || each == PlaceUpdate::kEmpty; };
    if (std::ranges::any_of(results, isEmpty)) Show(kTextAppName, m_texts.Text(kTextSyncFailed));
    constexpr std::pair<PlaceUpdate, int> kReports[] = {{PlaceUpdate::kUnknown, kTextCitiesUnknown},
                                                        {PlaceUpdate::kBroken, kTextForecastBroken},
                                                        {PlaceUpdate::kNotSaved, kTextWeatherNotSaved}};
    for (const auto& [kind, text] : kReports) {
        const auto names = namesOf(kind);
        if (!names.empty()) Show(kTextError, FillText(m_texts.Text(text), {names}));
    }
}

void CWeatherUpdate::Show(int titleId, const std::u16string& text) {
    m_boxes.Show({m_texts.Text(titleId), text, BoxIcon::kExclamation, BoxButtons::kOk});
}

}  // namespace rlx

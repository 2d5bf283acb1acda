#include "weather/weather_update.h"

#include <map>

#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_object_store.h"
#include "platform/fake/scripted_message_boxes.h"
#include "shell/resources.h"
#include "weather/replies.h"

namespace rlx {
namespace {

using test::ReplyFor;
using Results = std::vector<PlaceUpdate>;

struct Observer : IWeatherUpdateObserver {
    std::size_t cancelAfter = 100;
    std::size_t asked = 0;
    std::vector<std::u16string> seen;
    void OnPlace(std::u16string_view place, std::size_t, std::size_t) override { seen.emplace_back(place); }
    bool Cancelled() override { return asked >= cancelAfter; }
};

class WeatherUpdate : public testing::Test {
protected:
    Results Run(const std::vector<std::u16string>& places, IWeatherUpdateObserver* observer = nullptr) {
        CWeatherUpdate update(
            m_store,
            [&](const std::u16string& feedName) {
                m_asked.push_back(feedName);
                ++m_observer.asked;
                return FeedReply{m_replies[feedName], m_outcomes[feedName]};
            },
            m_boxes, m_texts);
        return update.Run(
            places,
            [] {
                return DateTime{.date = {2026, 11, 22}, .hour = 20};
            },
            observer);
    }
    std::vector<std::u16string> Shown() const {
        std::vector<std::u16string> texts;
        for (const auto& box : m_boxes.shown)
            texts.push_back(box.text);
        return texts;
    }

    CMemoryObjectStore m_objects;
    CMemoryFileSystem m_files{};
    CWeatherStore m_store{m_objects, m_files, "/app/cities.wet"};
    CScriptedMessageBoxes m_boxes;
    CResources m_texts;
    Observer m_observer;
    std::vector<std::u16string> m_asked;
    std::map<std::u16string, FeedOutcome> m_outcomes;  // answered, unless told otherwise
    std::map<std::u16string, std::u16string> m_replies = {{u"Paris", ReplyFor(u"Paris", u"2026-11-22T18:00Z")},
                                                          {u"Oslo", ReplyFor(u"Oslo", u"2026-11-22T18:00Z")},
                                                          {u"Rome", u"<html>"},
                                                          {u"Bern", u"weather_1#place_Bern#end_0#"},
                                                          {u"Basel", u"weather_1#place_Bern#end_1#"}};

    void SetUp() override { m_store.EnsureCreated(); }
};

TEST_F(WeatherUpdate, AsksForEachPlaceOnce) {
    const Results saved(3, PlaceUpdate::kSaved);
    EXPECT_EQ(Run({u"Paris:France", u"Oslo:Norway", u"Paris:France"}, &m_observer), saved);
    EXPECT_EQ(m_asked, (std::vector<std::u16string>{u"Paris", u"Oslo"}));
    EXPECT_EQ(m_observer.seen, (std::vector<std::u16string>{u"Paris:France", u"Oslo:Norway"}));
    EXPECT_TRUE(m_boxes.shown.empty());
    EXPECT_TRUE(m_store.Find(u"Oslo:Norway"));
}

TEST_F(WeatherUpdate, OneBadPlaceKeepsNobodyElseFromWeather) {
    m_outcomes[u"Wien"] = FeedOutcome::kFailed;
    EXPECT_EQ(
        Run({u"Nowhere:X", u"Rome:Italy", u"Bern:Switzerland", u"Wien:Austria", u"Basel:Switzerland", u"Oslo:Norway"}),
        (Results{PlaceUpdate::kEmpty, PlaceUpdate::kBroken, PlaceUpdate::kUnknown, PlaceUpdate::kNoReply,
                 PlaceUpdate::kBroken, PlaceUpdate::kSaved}));
    EXPECT_EQ(Shown(), (std::vector<std::u16string>{
                           u"Syncronisation failed", u"The server has no forecast for Bern.",
                           u"The forecast received for Rome, Basel cannot be read. The last good one is kept."}));
}

TEST_F(WeatherUpdate, CancellingIsNoFailure) {
    m_outcomes[u"Oslo"] = FeedOutcome::kCancelled;
    m_observer.cancelAfter = 2;
    EXPECT_EQ(Run({u"Paris:France", u"Oslo:Norway", u"Rome:Italy"}, &m_observer),
              (Results{PlaceUpdate::kSaved, PlaceUpdate::kNotAsked, PlaceUpdate::kNotAsked}));
    EXPECT_EQ(m_asked.size(), 2U);
    EXPECT_TRUE(m_boxes.shown.empty());
}

}  // namespace
}  // namespace rlx

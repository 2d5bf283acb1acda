#include "places/city_search.h"

#include "base/text.h"
#include "places/cities_fixture.h"

namespace rlx {
namespace {

class CitySearch : public test::CitiesFixture {
protected:
    void SetUp() override {
        ASSERT_EQ(Build("3\n"), CityListState::kReady);
        for (const char16_t* place :
             {u"paris:lower case", u"Paris:France", u"Paris:Texas", u"New York:United States", u"York:United Kingdom",
              u"Yorkton:Canada", u"S\u00E3o Paulo:Brazil", u"\u00C5lesund:Norway", u"\u00E5lesund:twin",
              u"Puerto La Cruz:Venezuela", u"Francistown:Botswana", u"St. John's:Canada", u"\uFFFFlast:End"}) {
            ASSERT_TRUE(cities.AddCity(place, u"", u"", u""));
        }
    }
    std::string Names(const std::vector<CityIndex>& indexes) {
        std::string names;
        for (const CityIndex index : indexes)
            names += (names.empty() ? "" : ", ") + ToUtf8(cities.GetPlace(index));
        return names;
    }
};

TEST_F(CitySearch, FindsByTheBeginningOfTheName) {
    CCitySearch search(cities);
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"PARIS", "Paris:France, Paris:Texas, paris:lower case"},
        {u"york", "York:United Kingdom, Yorkton:Canada"},
        {u"Sao", ""},
        {u"\u00C5L", "Ålesund:Norway, ålesund:twin"},
        {u"\uFFFF", "\uFFFFlast:End"},
    };
    for (const auto& [text, names] : rows)
        EXPECT_EQ(Names(search.FindByBeginning(text)), names) << ToUtf8(text);
    EXPECT_EQ(search.FindByBeginning(u"").size(), 13U);
}

TEST_F(CitySearch, RanksWhatFits) {
    CCitySearch search(cities);
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"york", "York:United Kingdom, Yorkton:Canada, New York:United States"},
        {u" sao p ", "São Paulo:Brazil"},
        {u"fran", "Francistown:Botswana, Paris:France"},
        {u"paris t", "Paris:Texas"},
        {u"ale", "Ålesund:Norway, ålesund:twin"},
        {u"la", "Puerto La Cruz:Venezuela, \uFFFFlast:End"},
        {u"john", "St. John's:Canada"},
    };
    for (const auto& [text, names] : rows)
        EXPECT_EQ(Names(search.Find(text)), names) << ToUtf8(text);
    EXPECT_EQ(search.Find(u"").size(), 13U);
    cities.AddCity(u"Yorkville:Canada", u"", u"", u"");
    search.Forget();
    EXPECT_EQ(search.Find(u"yorkv").size(), 1U);
}

}  // namespace
}  // namespace rlx

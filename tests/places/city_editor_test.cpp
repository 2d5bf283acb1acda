#include "places/city_editor.h"

#include "base/text.h"
#include "places/cities_fixture.h"
#include "places/zone_city.h"
#include "platform/fake/fixed_time_zones.h"
#include "platform/fake/memory_registry.h"

namespace rlx {
namespace {

class CityEditor : public test::CitiesFixture {
protected:
    void SetUp() override {
        zones.zones["Europe/Paris"] = {{0, 3600}};
        Build("2\nEurope/Paris;Bern;Switzerland;7;47;1;0;0;0;0;0\nold/zone;Paris;France;2;49;530;0;0;0;0;0\n");
        paris = CCityDraft(*editor.Find(u"Paris:France"));
        paris[CityField::kZone] = u"Europe/Paris";
    }
    std::string Places() {
        std::string all;
        for (const auto& place : cities.Places())
            all += ToUtf8(place) + " ";
        return all;
    }

    CMemoryRegistry registry;
    CFixedTimeZones zones;
    CCityListStore lists{store, registry, files, cities, kFile};
    CCityEditor editor{lists, files, kFile, zones, texts};
    CCityDraft paris;
};

TEST_F(CityEditor, NamesTheFieldThatIsWrong) {
    const struct {
        CityField field;
        std::u16string text;
        const char* fault;  ///< empty: the text is good
    } rows[] = {
        {CityField::kName, u"  ", "Enter the name of the city."},
        {CityField::kName, u"A:B", "The list of cities cannot hold \":\"."},
        {CityField::kName, std::u16string(101, u'a'), "At most 100 characters."},
        {CityField::kName, u"\u0141\u00F3d\u017A", "The list of cities cannot hold \"\u0141\"."},
        {CityField::kName, u"S\u00E3o", ""},
        {CityField::kLongitude, u"-180", ""},
        {CityField::kLongitude, u"180.001", "The longitude is a number of degrees from -180 (west) to 180 (east)."},
        {CityField::kLatitude, u"48,8", "The latitude is a number of degrees from -90 (south) to 90 (north)."},
        {CityField::kZone, u"", ""},
        {CityField::kZone, u"Mars/Base", "The system knows no time zone \"Mars/Base\"."},
        {CityField::kDstHours, u"4", "Daylight saving is 0 to 3 hours; 0 for never."},
        {CityField::kDstHours, u"1", "The days of change are days of the year from 1 to 366."},
    };
    for (const auto& row : rows) {
        CCityDraft draft = paris;
        draft[row.field] = row.text;
        const auto fault = CheckCity(draft, nullptr, zones, texts).fault;
        EXPECT_EQ(fault ? ToUtf8(fault->text) : "", row.fault) << ToUtf8(row.text);
        EXPECT_TRUE(!fault || fault->field == row.field || row.field == CityField::kDstHours) << ToUtf8(row.text);
    }
}

TEST_F(CityEditor, ReadsOffsetsAsPeopleWriteThem) {
    const std::pair<std::u16string, std::u16string> rows[] = {
        {u"5", u"5"},    {u"+5:30", u"530"}, {u"-3:30", u"-330"}, {u"-330", u"-330"}, {u"1400", u"14"},
        {u"14:30", u""}, {u"-0:30", u""},    {u"5:3", u""},       {u"5:60", u""},     {u"5:30:00", u""},
        {u"5h", u""},    {u"", u""},         {u"100", u""},       {u"5:+3", u""}};
    for (const auto& [typed, stored] : rows) {
        CCityDraft draft = paris;
        draft[CityField::kGmt] = typed;
        const CheckedCity checked = CheckCity(draft, nullptr, zones, texts);
        EXPECT_EQ(checked.fault ? u"" : checked.city.gmt, stored) << ToUtf8(typed);
    }
    EXPECT_EQ(paris[CityField::kGmt], u"5:30");
}

TEST_F(CityEditor, KeepsTheListInOrderWithoutTwins) {
    CCityDraft draft = paris;
    draft[CityField::kName] = u"Lyon";
    EXPECT_TRUE(editor.Add(draft).Done());
    EXPECT_EQ(Places(), "Bern:Switzerland Lyon:France Paris:France ");
    EXPECT_EQ(editor.Add(draft).fault->text, u"\"Lyon, France\" is already in the list of cities.");
    const CityFields lyon = *editor.Find(u"Lyon:France");
    EXPECT_EQ(editor.Change(lyon, paris).fault->text, u"\"Paris, France\" is already in the list of cities.");
    draft[CityField::kName] = u"Aix";
    EXPECT_TRUE(editor.Change(lyon, draft).Done());
    EXPECT_EQ(Places(), "Aix:France Bern:Switzerland Paris:France ");
    EXPECT_TRUE(editor.Change(lyon, draft).fault) << "somebody else has changed it";
    EXPECT_TRUE(editor.Delete(lyon).fault);
    EXPECT_TRUE(editor.Delete(*editor.Find(u"Aix:France")).Done());
    EXPECT_EQ(files.files[kFile],
              "2\nEurope/Paris;Bern;Switzerland;7;47;1;0;0;0;0;0\nold/zone;Paris;France;2;49;530;0;0;0;0;0\n");
    // A zone that the system does not know stays as long as nobody touches it.
    CCityDraft old = CCityDraft(*editor.Find(u"Paris:France"));
    old[CityField::kLatitude] = u"48.9";
    EXPECT_TRUE(editor.Change(*editor.Find(u"Paris:France"), old).Done());
    EXPECT_TRUE(editor.Add(old).fault);
}

TEST_F(CityEditor, FillsOffsetAndDaylightSavingFromTheZone) {
    const auto utc = [](int month, int day) { return SecondNumber({{2026, month, day}, 1, 0, 0, 0}); };
    zones.zones["Europe/Paris"] = {{0, 3600}, {utc(3, 29), 7200}, {utc(10, 25), 3600}};
    ASSERT_TRUE(FillFromZone(paris, zones, {2026, 1, 1}));
    EXPECT_EQ(paris[CityField::kGmt], u"1");
    EXPECT_EQ(DaylightText(paris, 2026, texts), u"Daylight saving in 2026: 29/3 2:00 to 25/10 3:00");
    paris[CityField::kStartDay] = u"0";
    EXPECT_EQ(DaylightText(paris, 2026, texts), u"");
    paris[CityField::kZone] = u"Mars/Base";
    EXPECT_FALSE(FillFromZone(paris, zones, {2026, 1, 1}));
    EXPECT_EQ(paris[CityField::kStartDay], u"0");
}

TEST(ZoneCity, IsTheOneThatTheZoneIsNamedAfter) {
    const CityList list = ParseCityList(
        "4\nAmerica/New_York;Boston;L;1;2;3;0;0;0;0;0\nAmerica/New_York;New York;L;1;2;3;0;0;0;0;0\n"
        "America/Sao_Paulo;S\xE3o Paulo;L;1;2;3;0;0;0;0;0\nAsia/Kolkata;Delhi;L;1;2;3;0;0;0;0;0\n");
    EXPECT_EQ(CityOfZone(list, "America/New_York"), u"New York:L");
    EXPECT_EQ(CityOfZone(list, "America/Sao_Paulo"), u"S\u00E3o Paulo:L");
    EXPECT_EQ(CityOfZone(list, "Asia/Kolkata"), u"Delhi:L");
    EXPECT_EQ(CityOfZone(list, "Etc/UTC"), std::nullopt);
}

}  // namespace
}  // namespace rlx

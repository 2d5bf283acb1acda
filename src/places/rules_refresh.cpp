#include "places/rules_refresh.h"

#include "base/text.h"
#include "places/rules_date.h"

namespace rlx {

namespace {

/// Cities share few zones.
class CRulesOfZones {
public:
    CRulesOfZones(ITimeZones& zones, const Date& day) : m_zones(zones), m_day(day) {}

    const std::optional<RuleFields>& Of(const std::u16string& zone) {
        const auto found = m_rules.find(zone);
        if (found != m_rules.end()) return found->second;
        return m_rules.emplace(zone, RuleOfZone(m_zones, ToUtf8(zone), m_day)).first->second;
    }

private:
    ITimeZones& m_zones;
    const Date m_day;
    std::map<std::u16string, std::optional<RuleFields>> m_rules;
};

/// The carriage return of a file with such line ends stands in the last field.
bool Apply(RuleFields rule, CityFields& city) {
    if (city.dst.back().ends_with(u'\r')) rule.dst.back() += u'\r';
    if (city.gmt == rule.gmt && city.dst == rule.dst) return false;
    city.gmt = std::move(rule.gmt);
    city.dst = std::move(rule.dst);
    return true;
}

}  // namespace

Date RulesDay(int year, const Date& today) {
    return year == today.year ? today : Date{year, 1, 1};
}

RulesRefresh RefreshRules(CCityListStore& store, ITimeZones& zones, IFileSystem& files,
                          const std::filesystem::path& folder, const Date& day) {
    RulesRefresh refresh;
    if (zones.Names().empty()) return {RulesRefresh::State::kNoZones, {}, 0, 0};
    CRulesOfZones rules(zones, day);
    refresh.list = store.Change([&](CityList& list, std::vector<CityRename>&) {
        for (CityFields& city : list.cities) {
            const auto& rule = rules.Of(city.zone);
            if (!rule)
                ++refresh.kept;
            else if (Apply(*rule, city))
                ++refresh.changed;
        }
        return refresh.changed > 0;
    });
    const CityListChange state = refresh.list.state;
    const bool listIsRight = state == CityListChange::kDone || state == CityListChange::kNothing;
    if (listIsRight && !WriteRulesDate(files, folder, day)) refresh.list.state = CityListChange::kNotSaved;
    if (!listIsRight || refresh.list.state == CityListChange::kNotSaved) refresh.state = RulesRefresh::State::kFailed;
    return refresh;
}

}  // namespace rlx

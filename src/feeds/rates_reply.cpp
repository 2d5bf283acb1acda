#include "feeds/rates_reply.h"

#include <algorithm>
#include <map>

namespace rlx {

namespace {

/// The names by code; a later entry replaces an earlier one.
std::map<std::u16string_view, std::u16string_view> NamesByCode(const CurrencyList& list) {
    std::map<std::u16string_view, std::u16string_view> names;
    const std::size_t count = std::min(list.size(), kLookupBound);
    for (std::size_t i = 0; i < count; ++i)
        names[list[i].code] = list[i].name;
    return names;
}

}  // namespace

std::vector<RateChange> ParseRatesReply(std::u16string_view reply, const CurrencyList& list) {
    const auto names = NamesByCode(list);
    std::vector<RateChange> changes;
    std::map<std::u16string_view, std::size_t> places;
    while (true) {
        const std::size_t mark = reply.find(u'_');
        if (mark == std::u16string_view::npos) return changes;
        const std::u16string_view code = reply.substr(0, mark);
        reply.remove_prefix(mark + 1);
        const std::size_t end = reply.find(u'#');
        if (end == std::u16string_view::npos) return changes;
        const std::u16string_view rate = reply.substr(0, end);
        reply.remove_prefix(end + 1);
        const auto name = names.find(code);
        if (name == names.end()) continue;
        const auto [place, isNew] = places.try_emplace(name->second, changes.size());
        if (isNew) changes.emplace_back();
        changes[place->second] = {std::u16string(name->second), std::u16string(code), std::u16string(rate)};
    }
}

}  // namespace rlx

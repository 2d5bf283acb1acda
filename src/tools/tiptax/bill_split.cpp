#include "tools/tiptax/bill_split.h"

#include <cstdint>

#include "base/number.h"

namespace rlx {

namespace {

constexpr std::int64_t kMaxCents = 999'999'999'999'999;

/// "123.45" as 12345. Works on the digits, so that what is shared is exactly what is shown.
std::optional<std::int64_t> Cents(std::u16string_view text) {
    const std::size_t point = text.find(u'.');
    if (point == std::u16string_view::npos || point == 0 || text.size() != point + 3) return std::nullopt;
    if (text.front() == u'-' || text.front() == u'+') return std::nullopt;
    const std::u16string digits = std::u16string(text.substr(0, point)).append(text.substr(point + 1));
    return ParseWholeInteger(digits, 0, kMaxCents);
}

std::u16string Money(std::int64_t cents) {
    return FormatInteger(cents / 100) + u"." + FormatTwoDigits(static_cast<int>(cents % 100));
}

}  // namespace

std::optional<BillSplit> SplitTotal(std::u16string_view totalText, int people) {
    const std::optional<std::int64_t> cents = Cents(totalText);
    if (!cents || people < 1 || people > kMaxPeople) return std::nullopt;
    const std::int64_t share = *cents / people;
    BillSplit split;
    split.larger = static_cast<int>(*cents % people);
    split.smaller = people - split.larger;
    split.smallerShare = Money(share);
    if (split.larger > 0) split.largerShare = Money(share + 1);
    return split;
}

}  // namespace rlx

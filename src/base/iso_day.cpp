#include "base/iso_day.h"

#include "base/number.h"

namespace rlx {

namespace {

bool IsDigits(std::u16string_view text) {
    return text.find_first_not_of(u"0123456789") == std::u16string_view::npos;
}

}  // namespace

std::u16string IsoDay(const Date& date) {
    return FormatInteger(date.year) + u"-" + FormatTwoDigits(date.month) + u"-" + FormatTwoDigits(date.day);
}

std::optional<Date> ParseIsoDay(std::u16string_view text) {
    if (text.size() != 10 || text[4] != u'-' || text[7] != u'-') return std::nullopt;
    const std::u16string_view year = text.substr(0, 4);
    const std::u16string_view month = text.substr(5, 2);
    const std::u16string_view day = text.substr(8, 2);
    if (!IsDigits(year) || !IsDigits(month) || !IsDigits(day)) return std::nullopt;
    const Date date{ParseInteger(year), ParseInteger(month), ParseInteger(day)};
    return IsValid(date) ? std::optional(date) : std::nullopt;
}

}  // namespace rlx

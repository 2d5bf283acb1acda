#include "feeds/rates_list.h"

#include <algorithm>

#include "base/calendar.h"
#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"

namespace rlx {

CurrencyList ReadRatesList(IByteStream& stream) {
    CByteReader reader(stream);
    const std::int32_t declared = ParseInteger(ReadToken(reader, '\n'));
    const std::size_t count = std::min(kMaxListEntries, static_cast<std::size_t>(std::max(declared, 0)));
    CurrencyList list;
    while (list.size() < count) {
        CurrencyEntry entry;
        entry.code = ReadToken(reader, '_');
        entry.name = ReadToken(reader, '_');
        entry.rate = ReadToken(reader, '#');
        if (entry.name.empty()) break;
        list.push_back(std::move(entry));
    }
    return list;
}

CurrencyList LoadRatesList(IFileSystem& files, const std::filesystem::path& applicationFolder) {
    const std::unique_ptr<IByteStream> stream = files.OpenRead(applicationFolder / kRatesListFile);
    return stream ? ReadRatesList(*stream) : CurrencyList();
}

std::u16string ShippedRatesDate(IFileSystem& files, const std::filesystem::path& applicationFolder) {
    const std::optional<std::string> bytes = files.ReadFile(applicationFolder / kRatesDateFile, 64);
    if (!bytes) return {};
    std::u16string text = Trim(Widen(*bytes));
    if (text.size() != 10 || text[4] != u'-' || text[7] != u'-') return {};
    const auto year = ParseWholeInteger(text.substr(0, 4), 1, 9999);
    const auto month = ParseWholeInteger(text.substr(5, 2), 1, 12);
    const auto day = ParseWholeInteger(text.substr(8, 2), 1, 31);
    if (!year || !month || !day) return {};
    return IsValid(Date{static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)}) ? text
                                                                                                    : std::u16string();
}

}  // namespace rlx

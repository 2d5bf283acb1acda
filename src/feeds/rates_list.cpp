#include "feeds/rates_list.h"

#include <algorithm>

#include "base/iso_day.h"
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

std::optional<Date> ShippedRatesDate(IFileSystem& files, const std::filesystem::path& applicationFolder) {
    const std::optional<std::string> bytes = files.ReadFile(applicationFolder / kRatesDateFile, 64);
    return bytes ? ParseIsoDay(Trim(Widen(*bytes))) : std::nullopt;
}

}  // namespace rlx

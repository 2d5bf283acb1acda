#include "base/byte_stream.h"
#include "feeds/rates_list.h"
#include "fuzz/target.h"

// Any bytes as "currs.lst".
void Try(std::string_view bytes) {
    rlx::CMemoryStream stream{std::string(bytes)};
    const rlx::CurrencyList list = rlx::ReadRatesList(stream);
    FailIf(list.size() > bytes.size() || list.size() > rlx::kMaxListEntries);
    for (const rlx::CurrencyEntry& entry : list)
        FailIf(entry.name.empty());
}

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/byte_stream.h"
#include "feeds/rates_list.h"

// Any bytes as "currs.lst".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    rlx::CMemoryStream stream(std::string(reinterpret_cast<const char*>(data), size));
    const rlx::CurrencyList list = rlx::ReadRatesList(stream);
    if (list.size() > size || list.size() > rlx::kMaxListEntries) std::abort();
    for (const rlx::CurrencyEntry& entry : list) {
        if (entry.name.empty()) std::abort();
    }
    return 0;
}

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "base/text.h"
#include "feeds/feed_address.h"
#include "feeds/http_url.h"
#include "platform/fake/memory_file_system.h"

// Any bytes as "adrs.cfg": the address ends before the "*", and a URL made of it has a host and no line ends.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rlx;
    CMemoryFileSystem files;
    files.WriteFile("/app/adrs.cfg", {reinterpret_cast<const char*>(data), size});
    const std::u16string address = FeedServerAddress(files, "/app");
    if (address.size() > 511 || address.find(u'*') != std::u16string::npos) std::abort();
    const auto url = ParseHttpUrl(address);
    if (url && (url->host.empty() || url->host.find('\r') != std::string::npos)) std::abort();
    return 0;
}

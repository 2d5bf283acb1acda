#include "base/text.h"
#include "feeds/feed_address.h"
#include "feeds/http_url.h"
#include "fuzz/target.h"
#include "platform/fake/memory_file_system.h"

// Any bytes as "adrs.cfg": the address ends before the "*", and a URL made of it has a host and no line ends.
void Try(std::string_view bytes) {
    using namespace rlx;
    CMemoryFileSystem files;
    files.WriteFile("/app/adrs.cfg", bytes);
    const std::u16string address = FeedServerAddress(files, "/app");
    FailIf(address.size() > 511 || address.find(u'*') != std::u16string::npos);
    const auto url = ParseHttpUrl(address);
    FailIf(url && (url->host.empty() || url->host.find('\r') != std::string::npos));
}

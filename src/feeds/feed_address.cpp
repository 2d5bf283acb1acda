#include "feeds/feed_address.h"

#include "base/text.h"

namespace rlx {

namespace {

constexpr char kEndOfAddress = 42;  // "*"
constexpr std::size_t kMaxAddress = 511;
constexpr std::size_t kMaxFile = 65'536;

}  // namespace

std::u16string FeedServerAddress(IFileSystem& files, const std::filesystem::path& applicationFolder) {
    const std::optional<std::string> bytes = files.ReadFile(applicationFolder / kAddressFile, kMaxFile);
    if (!bytes) return {};
    const std::string address = bytes->substr(0, bytes->find(kEndOfAddress));
    return address.size() > kMaxAddress ? std::u16string() : Widen(address);
}

}  // namespace rlx

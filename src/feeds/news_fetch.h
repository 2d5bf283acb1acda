#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "feeds/feed_client.h"
#include "platform/clock.h"
#include "platform/file_system.h"

namespace rlx {

/// The file of the application folder that holds the last news page.
inline constexpr char kNewsFile[] = "news.htm";

struct NewsFetchResult {
    FeedOutcome outcome = FeedOutcome::kFailed;
    bool saved = false;     ///< "news.htm" is the new page
    std::size_t bytes = 0;  ///< its size
};

/// Fetches the news page into "news.htm", which is then byte for byte what the server sent, and keeps the news flags
/// and the day and the host that the page comes from.
class CNewsFetch {
public:
    CNewsFetch(const FeedPorts& ports, IFileSystem& files, const IClock& clock,
               std::filesystem::path applicationFolder);

    /// `parameters`: what `CFeedParameters::NewsParameters` made. A failure was reported when this returns; an empty
    /// reply and a failure leave the last page, a failure also its identifier, so that the server sends the new one
    /// again.
    NewsFetchResult Fetch(std::u16string_view url, std::u16string_view parameters, IHttpObserver* observer = nullptr);

private:
    bool Keep(std::u16string_view page, std::u16string_view url);

    FeedPorts m_ports;
    IFileSystem& m_files;
    const IClock& m_clock;
    std::filesystem::path m_folder;
    CFeedClient m_client;
};

}  // namespace rlx

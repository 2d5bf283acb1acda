#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

enum class SourceKind { kEcbRates, kDailyRates, kRssNews, kNewsFolder };

/// Where facts come from: a web address (http, https) or a path of this machine.
struct FeedSource {
    SourceKind kind = SourceKind::kDailyRates;
    std::string from;
};

struct ServerConfig {
    std::vector<FeedSource> rates;  ///< a later one overrides an earlier one
    std::optional<FeedSource> news;
    std::chrono::minutes every{60};
    std::filesystem::path keep;  ///< folder of the last good answers; empty: they are not kept
};

/// Either a configuration or what is wrong with it, in one line that names the place.
struct ParsedConfig {
    std::optional<ServerConfig> config;
    std::string fault;
};

/// Reads {"rates": [{"kind": "ecb"|"daily", "from": "..."}], "news": {"kind": "rss"|"folder", "from": "..."},
/// "everyMinutes": 60, "keep": "/var/lib/..."}; all members may be left out, unknown ones are faults. Takes any bytes.
ParsedConfig ParseServerConfig(std::string_view json);

/// "127.0.0.1:8765", "[::1]:8765".
struct ListenAddress {
    std::string host;
    std::uint16_t port = 0;
};
std::optional<ListenAddress> ParseListenAddress(std::string_view text);

}  // namespace rlx

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "feedserver/answers.h"
#include "feedserver/server_config.h"
#include "platform/file_system.h"

namespace rlx {

/// Brings the knowledge up to date: the bundled snapshot, over it the last good answer of each source, over it what the
/// source says now. What cannot be believed changes nothing. Used from one thread.
class CRefresher {
public:
    /// Takes one line for the log.
    using Log = std::function<void(const std::string&)>;

    /// `data`: folder with currs.lst, currs.date and news/. All references outlive the refresher.
    CRefresher(IFileSystem& files, CKnowledgeBoard& board, ServerConfig config, std::filesystem::path data, Log log);

    /// Reads snapshot and kept answers, so that the server can answer at once.
    void Begin();

    /// Asks every source and publishes what it knows then. `today`: for the check of dates. True when every source gave
    /// something that can be believed.
    bool Refresh(const Date& today);

private:
    bool RefreshRates(std::size_t index, const Date& today);
    bool RefreshNews();
    void ReadKept();
    void Publish();
    std::filesystem::path KeptRates(std::size_t index) const;
    std::filesystem::path KeptNews() const;

    IFileSystem& m_files;
    CKnowledgeBoard& m_board;
    ServerConfig m_config;
    std::filesystem::path m_data;
    Log m_log;
    std::optional<RatesTable> m_snapshot;
    std::vector<std::optional<RatesTable>> m_rates;  ///< the last good table of each source
    std::optional<NewsItem> m_news;
};

}  // namespace rlx

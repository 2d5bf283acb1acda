#include "feedserver/refresher.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/iso_day.h"
#include "base/text.h"
#include "feeds/rates_list.h"
#include "feedserver/rates_check.h"
#include "feedserver/source_reader.h"

namespace rlx {

namespace {

std::string KeptForm(const RatesTable& table) {
    nlohmann::json json = {{"date", Narrow(IsoDay(table.date))}, {"usd", table.perDollar}};
    return json.dump(1);
}

}  // namespace

CRefresher::CRefresher(IFileSystem& files, CKnowledgeBoard& board, ServerConfig config, std::filesystem::path data,
                       Log log)
    : m_files(files),
      m_board(board),
      m_config(std::move(config)),
      m_data(std::move(data)),
      m_log(std::move(log)),
      m_rates(m_config.rates.size()) {}

void CRefresher::Begin() {
    const CurrencyList list = LoadRatesList(m_files, m_data);
    const std::optional<Date> date = ShippedRatesDate(m_files, m_data);
    if (!list.empty()) m_snapshot = RatesOfList(list, date.value_or(Date{}), "snapshot");
    if (!m_config.news) m_config.news = FeedSource{SourceKind::kNewsFolder, (m_data / "news").string()};
    if (!m_config.keep.empty()) ReadKept();
    Publish();
}

void CRefresher::ReadKept() {
    if (!m_files.CreateFolder(m_config.keep)) m_log("keep: " + m_config.keep.string() + " cannot be made");
    for (std::size_t i = 0; i < m_rates.size(); ++i) {
        const std::optional<std::string> bytes = m_files.ReadFile(KeptRates(i), kMaxSourceBytes);
        if (bytes) m_rates[i] = ParseDailyRates(*bytes).table;
        if (m_rates[i]) m_rates[i]->source = m_config.rates[i].from;
    }
    std::optional<std::string> page = m_files.ReadFile(KeptNews(), kMaxNewsBytes);
    if (page && !page->empty()) m_news = MakeNewsItem(std::move(*page));
}

std::filesystem::path CRefresher::KeptRates(std::size_t index) const {
    return m_config.keep / ("rates-" + std::to_string(index) + ".json");
}

std::filesystem::path CRefresher::KeptNews() const {
    return m_config.keep / "news.htm";
}

bool CRefresher::Refresh(const Date& today) {
    bool all = true;
    for (std::size_t i = 0; i < m_rates.size(); ++i)
        all = RefreshRates(i, today) && all;
    all = RefreshNews() && all;
    Publish();
    return all;
}

bool CRefresher::RefreshRates(std::size_t index, const Date& today) {
    const FeedSource& source = m_config.rates[index];
    const bool xml = source.kind == SourceKind::kEcbRates;
    const SourceBytes read = ReadSourceBytes(m_files, source.from, xml ? "xml" : "json");
    ParsedRates parsed{std::nullopt, read.fault};
    if (read.bytes) parsed = xml ? ParseEcbRates(*read.bytes) : ParseDailyRates(*read.bytes);
    if (parsed.table) {
        const RatesCheck check = CheckRates(*parsed.table, m_rates[index] ? &*m_rates[index] : nullptr, today);
        for (const std::string& mark : check.marks)
            m_log("rates: " + source.from + ": " + mark);
        parsed.fault = check.fault;
    }
    if (!parsed.fault.empty()) {
        m_log("rates: " + source.from + ": " + parsed.fault);
        return false;
    }
    parsed.table->source = source.from;
    m_rates[index] = std::move(parsed.table);
    if (!m_config.keep.empty() && !m_files.WriteFile(KeptRates(index), KeptForm(*m_rates[index])))
        m_log("keep: " + KeptRates(index).string() + " cannot be written");
    return true;
}

bool CRefresher::RefreshNews() {
    const FeedSource& source = *m_config.news;
    ParsedNews parsed;
    if (source.kind == SourceKind::kNewsFolder) {
        parsed = NewestPage(m_files, source.from);
    } else {
        const SourceBytes read = ReadSourceBytes(m_files, source.from, "xml");
        parsed = read.bytes ? ParseRssNews(*read.bytes) : ParsedNews{std::nullopt, read.fault};
    }
    if (!parsed.item) {
        m_log("news: " + source.from + ": " + parsed.fault);
        return false;
    }
    const bool isNew = !m_news || m_news->id != parsed.item->id;
    m_news = std::move(parsed.item);
    if (isNew && !m_config.keep.empty() && !m_files.WriteFile(KeptNews(), m_news->html))
        m_log("keep: " + KeptNews().string() + " cannot be written");
    return true;
}

void CRefresher::Publish() {
    Knowledge knowledge;
    const auto add = [&knowledge](const std::optional<RatesTable>& table) {
        if (!table) return;
        for (const auto& [code, rate] : table->perDollar)
            knowledge.rates[code] = rate;
        if (knowledge.ratesDate && table->date < *knowledge.ratesDate) return;
        knowledge.ratesDate = table->date;
        knowledge.ratesSource = table->source;
    };
    add(m_snapshot);
    for (const std::optional<RatesTable>& table : m_rates)
        add(table);
    knowledge.news = m_news;
    m_board.Publish(std::move(knowledge));
}

}  // namespace rlx

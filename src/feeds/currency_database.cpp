#include "feeds/currency_database.h"

namespace rlx {

namespace {

constexpr std::u16string_view kDatabaseName = u"rlxCurrencies";
constexpr std::uint32_t kDatabaseType = 98765;

Record RecordOf(std::u16string_view name, std::u16string_view code, std::u16string_view rate) {
    return {{PROP_CURRENCY_NAME, std::u16string(name)},
            {PROP_CURRENCY_CODE, std::u16string(code)},
            {PROP_CURRENCY_RATE, std::u16string(rate)}};
}

CurrencyEntry EntryOf(const Record& record) {
    return {PropertyText(record, PROP_CURRENCY_CODE), PropertyText(record, PROP_CURRENCY_NAME),
            PropertyText(record, PROP_CURRENCY_RATE)};
}

}  // namespace

CCurrencyDatabase::CCurrencyDatabase(IObjectStore& store) : m_store(store) {}

bool CCurrencyDatabase::EnsureCreated(const CurrencyList& list) {
    if (OpenFilled()) return true;
    return m_store.Transact([this, &list] { return OpenFilled() || Build(list); }) && m_database != nullptr;
}

bool CCurrencyDatabase::OpenFilled() {
    m_database = m_store.Open(kDatabaseName);
    return m_database && m_database->Count() > 0;
}

bool CCurrencyDatabase::Build(const CurrencyList& list) {
    if (!m_store.Create(kDatabaseName, kDatabaseType, {PROP_CURRENCY_NAME, PROP_CURRENCY_CODE, PROP_CURRENCY_RATE}))
        return false;
    m_database = m_store.Open(kDatabaseName);
    if (!m_database) return false;
    for (const CurrencyEntry& entry : list) {
        if (!m_database->Add(RecordOf(entry.name, entry.code, entry.rate))) return false;
    }
    return true;
}

std::size_t CCurrencyDatabase::Count() {
    return m_database ? m_database->Count() : 0;
}

std::optional<CurrencyEntry> CCurrencyDatabase::At(std::size_t position) {
    if (!m_database) return std::nullopt;
    const std::optional<RecordId> id = m_database->SeekPosition(PROP_CURRENCY_NAME, position);
    const std::optional<Record> record = id ? m_database->Read(*id) : std::nullopt;
    return record ? std::optional(EntryOf(*record)) : std::nullopt;
}

CurrencyList CCurrencyDatabase::All() {
    CurrencyList all;
    if (!m_database) return all;
    for (const Record& record : m_database->Records(PROP_CURRENCY_NAME))
        all.push_back(EntryOf(record));
    return all;
}

bool CCurrencyDatabase::HasName(std::u16string_view name) {
    return m_database && m_database->SeekValue(PROP_CURRENCY_NAME, name).has_value();
}

bool CCurrencyDatabase::WriteRate(std::u16string_view name, std::u16string_view code, std::u16string_view rate) {
    if (!m_database) return false;
    const std::optional<RecordId> id = m_database->SeekValue(PROP_CURRENCY_NAME, name);
    return id && m_database->Overwrite(*id, RecordOf(name, code, rate));
}

std::optional<Date> CCurrencyDatabase::LastModifiedDate() {
    const std::optional<std::int64_t> second = m_database ? m_database->LastModified() : std::nullopt;
    return second ? std::optional(DateTimeOfSecondNumber(*second).date) : std::nullopt;
}

}  // namespace rlx

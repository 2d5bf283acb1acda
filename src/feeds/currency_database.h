#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/calendar.h"
#include "feeds/rates_list.h"
#include "platform/object_store.h"

namespace rlx {

inline constexpr PropertyId PROP_CURRENCY_CODE = 401;
inline constexpr PropertyId PROP_CURRENCY_NAME = 402;
inline constexpr PropertyId PROP_CURRENCY_RATE = 403;

/// A screen's handle on the record database "rlxCurrencies": one record for each currency, found by its name, the rate
/// kept as the text that came. Used from one thread; the store outlives it.
class CCurrencyDatabase {
public:
    explicit CCurrencyDatabase(IObjectStore& store);

    /// Opens the database; when it is missing or empty, makes it and adds the list's entries, all or none. False when
    /// the device refuses; every other call then finds no currency.
    bool EnsureCreated(const CurrencyList& list);

    std::size_t Count();

    /// The currency at a position of the primary order, which is by name.
    std::optional<CurrencyEntry> At(std::size_t position);

    /// All of them in that order.
    CurrencyList All();

    bool HasName(std::u16string_view name);

    /// Overwrites the record of that name; false when there is none or the device refuses.
    bool WriteRate(std::u16string_view name, std::u16string_view code, std::u16string_view rate);

    /// The device's date when a record was last written; nothing when that is not known.
    std::optional<Date> LastModifiedDate();

private:
    bool OpenFilled();
    bool Build(const CurrencyList& list);

    IObjectStore& m_store;
    std::unique_ptr<IRecordDatabase> m_database;
};

}  // namespace rlx

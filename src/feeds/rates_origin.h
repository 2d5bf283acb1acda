#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/calendar.h"
#include "platform/file_system.h"
#include "platform/registry.h"

namespace rlx {

/// Of when and from where the stored rates are.
struct RatesOrigin {
    std::optional<Date> date;  ///< nothing when it is not known
    std::u16string source;     ///< host of the feed server; empty: the rates that came with the application
};

/// The last update's, else the shipped list's.
RatesOrigin OriginOfRates(IRegistry& registry, IFileSystem& files, const std::filesystem::path& applicationFolder);

/// Rates are old after a week, or when their day is not known.
bool AreRatesOld(const RatesOrigin& origin, const Date& today);

}  // namespace rlx

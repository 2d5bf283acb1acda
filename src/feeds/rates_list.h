#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "base/byte_stream.h"
#include "platform/file_system.h"

namespace rlx {

/// One currency of the list that the application ships.
struct CurrencyEntry {
    std::u16string code;  ///< what the feed server calls it ("EUR")
    std::u16string name;  ///< what people read; the key of the currency database
    std::u16string rate;  ///< decimal text: units per US dollar

    friend bool operator==(const CurrencyEntry&, const CurrencyEntry&) = default;
};

using CurrencyList = std::vector<CurrencyEntry>;

inline constexpr char kRatesListFile[] = "currs.lst";
inline constexpr char kRatesDateFile[] = "currs.date";

/// More entries than this are not read.
inline constexpr std::size_t kMaxListEntries = 10'000;

/// Reads a list (docs/formats/currs-lst.md). When the file ends before its count, the entries that are there count; a
/// last entry without its end is taken when it has a name.
CurrencyList ReadRatesList(IByteStream& stream);

/// "currs.lst" of the application folder; empty when it cannot be read.
CurrencyList LoadRatesList(IFileSystem& files, const std::filesystem::path& applicationFolder);

/// The day of the list's rates ("2026-09-29") from "currs.date"; empty when it is missing or no date.
std::u16string ShippedRatesDate(IFileSystem& files, const std::filesystem::path& applicationFolder);

}  // namespace rlx

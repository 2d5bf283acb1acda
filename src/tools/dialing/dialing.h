#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shell/text_id.h"

/// Dialing and area codes as the page and the command line show them. Pure functions, any thread.
namespace rlx {

/// In the order of the selector; the first is selected at start.
enum class DialingTable { kInternational, kUs };

inline constexpr std::size_t kDialingTables = 2;
inline constexpr std::size_t kDialingColumns = 3;

/// The entry of the selector.
TextId DialingTableName(DialingTable table);

std::array<TextId, kDialingColumns> DialingColumns(DialingTable table);

/// The widths of the columns for the page's font-size factor, in the unit of that factor.
std::array<int, kDialingColumns> DialingColumnWidths(DialingTable table, int fontFactor);

std::size_t DialingRowCount(DialingTable table);

/// The cells of a row as shown: a country's code has a "+" in front. `row` is below `DialingRowCount`.
std::array<std::u16string, kDialingColumns> DialingCells(DialingTable table, std::size_t row);

/// The first row whose first cell begins with `text`, case ignored; nothing when none does or `text` is empty.
std::optional<std::size_t> FindDialingRow(DialingTable table, std::u16string_view text);

}  // namespace rlx

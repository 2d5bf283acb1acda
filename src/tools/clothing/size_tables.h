#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "shell/text_id.h"

/// Twelve tables of equivalent clothing sizes, compiled in. Reference data, kept as it is.
namespace rlx {

inline constexpr std::size_t kSizeLines = 4;
inline constexpr std::size_t kSizeColumns = 11;

/// One country. The sizes of one column of all four lines correspond; an empty cell has none.
struct SizeLine {
    std::u16string_view country;
    std::array<std::u16string_view, kSizeColumns> cells{};
    std::u16string_view note{};  ///< a line without columns: a free text across them
};

struct SizeTable {
    TextId title;
    std::array<SizeLine, kSizeLines> lines;
};

/// In the order in which they are told.
enum class SizeTableId {
    kBras,
    kDresses,
    kMensShirts,
    kWomensBlouses,
    kChildrensClothing,
    kMensShoes,
    kWomensShoes,
    kChildrensShoes,
    kSuits,
    kMensTrousers,
    kWomensTrousers,
    kChildrensTrousers,
};

const SizeTable& SizesOf(SizeTableId id);

/// How many columns a table fills; the rest of its cells are empty.
std::size_t ColumnsOf(const SizeTable& table);

/// Country and sizes with single blanks between them.
std::u16string LineText(const SizeLine& line);

/// A title as read rather than as a label: "&&" is one "&".
std::u16string TitleText(std::u16string_view label);

}  // namespace rlx

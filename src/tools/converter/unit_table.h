#pragma once

#include <iterator>
#include <span>
#include <string_view>

/// The units that a new device store begins with. Factors are texts, kept exactly as they are and read as numbers only
/// when a conversion runs: the ones with a comma count up to the comma.
namespace rlx {

struct SeedUnit {
    std::u16string_view name;    ///< as displayed; blanks at the ends belong to it
    std::u16string_view factor;  ///< base units of the category in one of this unit; "-" for temperatures
};

std::span<const SeedUnit> SeedAreas();         ///< base unit: square meter
std::span<const SeedUnit> SeedLengths();       ///< base unit: meter
std::span<const SeedUnit> SeedPressures();     ///< base unit: pascal
std::span<const SeedUnit> SeedSpeeds();        ///< base unit: meter per second
std::span<const SeedUnit> SeedTemperatures();  ///< converted by formulas, in this order
std::span<const SeedUnit> SeedVolumes();       ///< base unit: kiloliter
std::span<const SeedUnit> SeedWeights();       ///< base unit: kilogram

}  // namespace rlx

#include "tools/converter/unit_table.h"

namespace rlx {

namespace {

constexpr SeedUnit kTemperatures[] = {
    {u"°C - Degree Celsius", u"-"}, {u"°F - Degree Fahrenheit", u"-"},
    {u"Degree Rankine", u"-"},      {u"Degree Reaumur", u"-"},
    {u"K - Kelvin", u"-"},
};

static_assert(std::size(kTemperatures) == 5);

}  // namespace

std::span<const SeedUnit> SeedTemperatures() {
    return kTemperatures;
}

}  // namespace rlx

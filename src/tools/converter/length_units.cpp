#include "tools/converter/unit_table.h"

namespace rlx {

namespace {

constexpr SeedUnit kLengths[] = {
    {u"Cable (in)", u"219.456"},
    {u"cm - Centimeter", u"0.01"},
    {u"Fth(Fm) - Fathom", u"1.83"},
    {u"Feet", u"0.3048"},
    {u"Inch", u"0.0254"},
    {u"km - Kilometer", u"1000"},
    {u"League", u"4828.0417"},
    {u"League [nautical]", u"5556"},
    {u"m - Meter", u"1"},
    {u"Microinch", u"0.0000000254"},
    {u"Mile", u"1609.344"},
    {u"mm - Millimeter", u"0.001"},
    {u"nm - Nanometer", u"1.0e-9"},
    {u"Nmi(NM,M) - Nautical Mile", u"1852"},
    {u"Statue Mile (Mile)", u"1609"},
    {u"Yard", u"0.9144"},
};

static_assert(std::size(kLengths) == 16);

}  // namespace

std::span<const SeedUnit> SeedLengths() {
    return kLengths;
}

}  // namespace rlx

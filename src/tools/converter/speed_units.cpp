#include "tools/converter/unit_table.h"

namespace rlx {

namespace {

constexpr SeedUnit kSpeeds[] = {
    {u"centimeter/second", u"0.01"},
    {u"foot/second", u"0.3048"},
    {u"inch/second", u"0.0254"},
    {u"kph - kilometer/hour", u"0.27777777777777777777777777777778"},
    {u"kilometer/second", u"1000"},
    {u"kn - knot", u"0.51444444444444444444444444444444"},
    {u"mach", u"340.29"},
    {u"m/s - meter/second", u"1"},
    {u"mile/hour (mph)", u"0.44704"},
    {u"mile/second", u"1609.344"},
    {u"millimeter/second", u"0.001"},
    {u"speed of light [vacuum]", u"299792458"},
    {u"speed of sound [air]", u"340.29"},
};

static_assert(std::size(kSpeeds) == 13);

}  // namespace

std::span<const SeedUnit> SeedSpeeds() {
    return kSpeeds;
}

}  // namespace rlx

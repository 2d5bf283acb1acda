#include "tools/converter/unit_table.h"

namespace rlx {

namespace {

constexpr SeedUnit kWeights[] = {
    {u"cg - Centigram", u"0.00001"},
    {u"dg - Decigram", u"0.0001"},
    {u"Dekagram", u"0.01"},
    {u"Dram", u"0.0017718451953125"},
    {u"Grain", u"0.00006479891"},
    {u"gr - Gram", u"0.001"},
    {u"Hectogram", u"0.1"},
    {u"Hundredweight [long, UK]", u"50.80234544"},
    {u"Hundredweight [short, US]", u"45.359237"},
    {u"kg - Kilogram", u"1"},
    {u"Lb, Lbs", u"0.45359237"},
    {u"Long ton", u"1016.0469088"},
    {u"Megagram", u"1000"},
    {u"Metric ton", u"1000"},
    {u"Microgram", u"0.000000001"},
    {u"mg - Milligram", u"0.000001"},
    {u"Ounce", u"0.028349523125"},
    {u"Pound", u"0.45359237"},
    {u"Short ton", u"907.18474"},
    {u"Ton [long, UK]", u"1016.0469088"},
    {u"Ton [metric]", u"1000"},
    {u"Ton [short, US]", u"907,18474"},
    {u"Tonne", u"1000"},
};

static_assert(std::size(kWeights) == 23);

}  // namespace

std::span<const SeedUnit> SeedWeights() {
    return kWeights;
}

}  // namespace rlx

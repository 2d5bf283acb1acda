#include "tools/converter/conversion.h"

#include <cmath>

#include "base/number.h"
#include "tools/converter/text_ids.h"

namespace rlx {

namespace {

enum Scale : std::size_t { kCelsius, kFahrenheit, kRankine, kReaumur, kKelvin };

constexpr double kZeroCelsius = 273.15;  // K
constexpr double kFiveNinths = 0.5555555555555556;
constexpr int kDigits = 15;

double ToKelvin(double value, std::size_t from) {
    switch (from) {
        case kCelsius:
            return value + kZeroCelsius;
        case kFahrenheit:
            return (value - 32) * kFiveNinths + kZeroCelsius;
        case kRankine:
            return value * kFiveNinths;
        case kReaumur:
            return value * 1.25 + kZeroCelsius;
        default:
            return value;
    }
}

double FromKelvin(double kelvin, std::size_t to) {
    switch (to) {
        case kCelsius:
            return kelvin - kZeroCelsius;
        case kFahrenheit:
            return (kelvin - kZeroCelsius) * 1.8 + 32;
        case kRankine:
            return kelvin * 1.8;
        case kReaumur:
            return (kelvin - kZeroCelsius) * 0.8;
        default:
            return kelvin;
    }
}

}  // namespace

double ConvertLinear(double value, std::u16string_view fromFactor, std::u16string_view toFactor) {
    return value * ParseNumber(fromFactor) / ParseNumber(toFactor);
}

std::optional<double> ConvertTemperature(double value, std::size_t from, std::size_t to) {
    const double kelvin = ToKelvin(value, from);
    if (kelvin < 0) return std::nullopt;
    return FromKelvin(kelvin, to);
}

std::optional<double> Convert(double value, const UnitTables& tables, std::size_t category, std::size_t from,
                              std::size_t to) {
    if (category == kTemperatures) return ConvertTemperature(value, from, to);
    const std::vector<Unit>& units = tables.at(category);
    return ConvertLinear(value, units.at(from).factor, units.at(to).factor);
}

std::u16string ResultText(double result, const ITexts& texts) {
    if (std::isnan(result)) return texts.Text(kTextNotANumber);
    if (std::isinf(result)) return (result < 0 ? u"-" : u"") + texts.Text(kTextInfinite);
    return FormatGeneral(result, kDigits);
}

}  // namespace rlx

#include "currency/converter_pairs.h"

#include <algorithm>
#include <string_view>

#include "shell/registry_store.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::array<std::u16string_view, kConverterPairs> kUsualTargets = {u"EUR", u"GBP", u"JPY"};
constexpr std::u16string_view kUsualSource = u"USD";
constexpr std::size_t kMostPositions = 0xFFFF;

std::size_t PositionOf(const CurrencyList& currencies, std::u16string_view code) {
    const auto found = std::find_if(currencies.begin(), currencies.end(),
                                    [code](const CurrencyEntry& each) { return each.code == code; });
    return found == currencies.end() ? 0 : static_cast<std::size_t>(found - currencies.begin());
}

}  // namespace

std::uint32_t EncodePair(const CurrencyPair& pair) {
    if (pair.from >= kMostPositions || pair.to >= kMostPositions) return 0;
    return static_cast<std::uint32_t>((pair.from + 1) | ((pair.to + 1) << 16));
}

std::optional<CurrencyPair> DecodePair(std::uint32_t number, std::size_t count) {
    const std::size_t from = number & 0xFFFF;
    const std::size_t to = number >> 16;
    if (from == 0 || to == 0 || from > count || to > count) return std::nullopt;
    return CurrencyPair{from - 1, to - 1};
}

CurrencyPair CConverterPairs::Read(std::size_t row, const CurrencyList& currencies) {
    const std::uint32_t number = CRegistryStore(m_registry).ReadDwordOr(keys::kCurrencies, names::kPairs[row], 0);
    const std::optional<CurrencyPair> pair = DecodePair(number, currencies.size());
    if (pair) return *pair;
    return {PositionOf(currencies, kUsualSource), PositionOf(currencies, kUsualTargets.at(row))};
}

void CConverterPairs::Write(std::size_t row, const CurrencyPair& pair) {
    CRegistryStore(m_registry)
        .WriteDword(RegistryRoot::kLocalMachine, keys::kCurrencies, names::kPairs[row], EncodePair(pair));
}

}  // namespace rlx

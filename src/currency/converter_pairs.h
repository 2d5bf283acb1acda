#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "feeds/rates_list.h"
#include "platform/registry.h"

namespace rlx {

/// The two currencies of one converter row, by their positions in the order of the currency database.
struct CurrencyPair {
    std::size_t from = 0;
    std::size_t to = 0;

    friend bool operator==(const CurrencyPair&, const CurrencyPair&) = default;
};

inline constexpr std::size_t kConverterPairs = 3;

/// A pair as one number of the registry: the low 16 bits are the first position + 1, the high 16 bits the second + 1.
/// 0 is no choice. Positions above 65,534 cannot be kept and give 0.
std::uint32_t EncodePair(const CurrencyPair& pair);

/// Nothing for 0 and for positions that are not below `count`.
std::optional<CurrencyPair> DecodePair(std::uint32_t number, std::size_t count);

/// The converter rows that the user chose: "curp", "curp2" and "curp3" in "Roamlytix\currencies".
class CConverterPairs {
public:
    explicit CConverterPairs(IRegistry& registry) : m_registry(registry) {}

    /// The pair of a row, which is below `kConverterPairs`. Without a valid choice it is the row's usual pair: dollars
    /// to euros, pounds, yen; the first currency stands for one that the list lacks. When the key is missing, 0 is
    /// written so that it comes to be.
    CurrencyPair Read(std::size_t row, const CurrencyList& currencies);

    void Write(std::size_t row, const CurrencyPair& pair);

private:
    IRegistry& m_registry;
};

}  // namespace rlx

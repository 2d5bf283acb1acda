#include <cmath>

#include "base/text.h"
#include "currency/converter_pairs.h"
#include "currency/currency_convert.h"
#include "currency/currency_search.h"
#include "currency/rate_card.h"
#include "platform/fake/memory_registry.h"
#include "shell/registry_store.h"
#include "shell/setting_names.h"

namespace rlx::test {
namespace {

const CurrencyList kList = {
    {u"DKK", u"Danish Krone", u"6.9"},  {u"EUR", u"Euro", u"0.92"},          {u"JPY", u"Japanese Yen", u"150"},
    {u"DOP", u"Dominican Peso", u"60"}, {u"GBP", u"Pound Sterling", u"0.8"}, {u"USD", u"US Dollar", u"1"},
};

TEST(RateCard, ChosenOnesFirstThenPopularOnesEachOnce) {
    CurrencyList list = kList;
    list.push_back({u"XXX", u"Unknown Coin", u"n/a"});
    const auto codes = [&list](std::size_t base, const std::vector<std::size_t>& chosen) {
        std::string text;
        for (const RateCardRow& row : RateCardOf(list, base, chosen))
            text += ToUtf8(row.code + u" " + row.worth + u";");
        return text;
    };
    EXPECT_EQ(codes(5, {3, 6, 3, 5, 1}), "DOP 60.00;EUR 0.9200;GBP 0.8000;JPY 150.00;DKK 6.90;");
    EXPECT_EQ(codes(2, {}), "USD 0.006667;EUR 0.006133;GBP 0.005333;DKK 0.04600;");
    EXPECT_EQ(codes(6, {0}), "");
    EXPECT_EQ(codes(99, {0, 99}), "");
}

TEST(Convert, GoesThroughTheDollar) {
    EXPECT_DOUBLE_EQ(Convert(100, u"0.8", u"150").value(), 18750);
    EXPECT_DOUBLE_EQ(Convert(-3, u"1", u"0.92").value(), -2.76);
    EXPECT_EQ(Convert(0.1, u"0.3", u"0.30"), 0.1);
    for (const char16_t* unknown : {u"", u"0", u"-1", u"n/a", u"nan", u"inf", u"1e999"}) {
        EXPECT_FALSE(Convert(1, unknown, u"1")) << ToUtf8(unknown);
        EXPECT_FALSE(Convert(1, u"1", unknown)) << ToUtf8(unknown);
    }
    EXPECT_FALSE(Convert(1e300, u"1e-300", u"1"));
    EXPECT_FALSE(Convert(std::nan(""), u"1", u"1"));
}

TEST(Convert, ReadsAmountsAsTyped) {
    EXPECT_EQ(ParseAmount(u" 12.50 EUR"), 12.5);
    EXPECT_EQ(ParseAmount(u"1 234 567.5"), 1234567.5);
    EXPECT_EQ(ParseAmount(u"1'000"), 1000);
    EXPECT_EQ(ParseAmount(u"1,5"), 1);
    for (const char16_t* none : {u"", u"-", u"abc", u"inf", u"1e999"})
        EXPECT_FALSE(ParseAmount(none)) << ToUtf8(none);
}

TEST(Convert, ShowsSensibleDecimals) {
    const struct {
        double amount;
        const char16_t* text;
    } rows[] = {
        {0, u"0.00"},
        {1234.567, u"1234.57"},
        {-9.999, u"-10.00"},
        {0.00412345, u"0.004123"},
        {1e-9, u"0.000000001000"},
        {1.5e-20, u"1.5e-20"},
        {1e15, u"1e+15"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FormatAmount(row.amount), row.text) << row.amount << " " << ToUtf8(FormatAmount(row.amount));
}

TEST(ConverterPairs, AreKeptInOneNumber) {
    EXPECT_EQ(EncodePair({0, 0}), 0x00010001U);
    EXPECT_EQ(EncodePair({1, 0x1234}), 0x12350002U);
    EXPECT_EQ(EncodePair({0xFFFF, 0}), 0U);
    EXPECT_EQ(DecodePair(0x00030001, 3), (CurrencyPair{0, 2}));
    for (const std::uint32_t bad : {0U, 0x00010000U, 0x00000001U, 0x00040001U, 0xFFFFFFFFU})
        EXPECT_FALSE(DecodePair(bad, 3)) << bad;
}

TEST(ConverterPairs, StartWithUsualOnes) {
    CMemoryRegistry registry;
    CConverterPairs pairs(registry);
    CRegistryStore settings(registry);
    EXPECT_EQ(pairs.Read(0, kList), (CurrencyPair{5, 1}));
    EXPECT_EQ(settings.ReadDword(RegistryRoot::kLocalMachine, keys::kCurrencies, u"curp"), 0U);
    EXPECT_EQ(pairs.Read(1, kList), (CurrencyPair{5, 4}));
    EXPECT_FALSE(registry.Query(RegistryRoot::kLocalMachine, keys::kCurrencies, u"curp2"));
    EXPECT_EQ(pairs.Read(2, {}), (CurrencyPair{0, 0}));
    pairs.Write(2, {3, 0});
    EXPECT_EQ(pairs.Read(2, kList), (CurrencyPair{3, 0}));
    EXPECT_EQ(settings.ReadDword(RegistryRoot::kLocalMachine, keys::kCurrencies, u"curp3"), 0x00010004U);
    EXPECT_EQ(pairs.Read(2, {kList[5]}), (CurrencyPair{0, 0}));
}

TEST(CurrencySearch, RanksWhatFits) {
    const auto found = [](std::u16string_view typed) {
        std::string codes;
        for (const std::size_t at : SearchCurrencies(typed, kList))
            codes += Narrow(kList[at].code) + " ";
        return codes;
    };
    EXPECT_EQ(found(u""), "DKK EUR JPY DOP GBP USD ");
    EXPECT_EQ(found(u"usd"), "USD ");
    EXPECT_EQ(found(u"do"), "DOP USD ");
    EXPECT_EQ(found(u" STERLING "), "GBP ");
    EXPECT_EQ(found(u"france"), "EUR ");
    EXPECT_EQ(found(u"ecuador"), "USD ");
    EXPECT_EQ(found(u"gr\u00E9ENland"), "DKK ");
}

}  // namespace
}  // namespace rlx::test

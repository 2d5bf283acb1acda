#include "currency/ui/currency_screen.h"

#include "platform/fake/fixed_clock.h"
#include "shell/setting_names.h"
#include "ui/tools/tools_test_device.h"

namespace rlx {
namespace {

const CurrencyList kList = {{u"EUR", u"Euro", u"0.8"},
                            {u"GBP", u"Pound Sterling", u"0.5"},
                            {u"JPY", u"Japanese Yen", u"160"},
                            {u"USD", u"US Dollar", u"1"},
                            {u"XXX", u"Unknown Coin", u"n/a"}};

/// The converter's positions in the order of the database, which is by name: Euro, Yen, Pound, Dollar, Coin.
enum : int { kEuro, kYen, kPound, kDollar, kCoin };

class CurrencyScreen : public ::testing::Test {
protected:
    CurrencyScreen() {
        database.EnsureCreated(kList);
        screen.emplace(CCurrencyScreen::Source{database, device.registry, Date{2026, 9, 29}}, clock, device.resources,
                       device.look);
        screen->resize(480, 560);
        screen->show();
    }

    template <typename Widget>
    Widget* Find(int pair, const char* name) {
        return screen->findChild<CPairPanel*>(QStringLiteral("pair%1").arg(pair))->findChild<Widget*>(name);
    }
    QLineEdit* Amount(int pair, int side) { return Find<QLineEdit>(pair, side == 0 ? "amount0" : "amount1"); }

    void Type(int pair, int side, const char* text) {
        Amount(pair, side)->selectAll();
        QTest::keyClicks(Amount(pair, side), text);
    }

    void Choose(int pair, int side, const char* typed) {
        test::ChooseIn(*screen, Find<CSearchCombo>(pair, side == 0 ? "currency0" : "currency1"), typed);
    }

    QString Text(const char* name) { return screen->findChild<QLabel*>(name)->text(); }

    void WriteDate(std::u16string_view date, std::u16string_view source) {
        device.settings.WriteString(RootOf(keys::kCurrencies), keys::kCurrencies, names::kRatesDate, date);
        device.settings.WriteString(RootOf(keys::kCurrencies), keys::kCurrencies, names::kRatesSource, source);
    }

    test::ToolsDevice device;
    CFixedClock clock{{{2026, 10, 2}, 12, 0, 0, 0}};
    CCurrencyDatabase database{device.store};
    std::optional<CCurrencyScreen> screen;
};

TEST_F(CurrencyScreen, ConvertsWhatIsTypedIntoEitherField) {
    EXPECT_EQ(Amount(0, 1)->text(), "0.8000");  // 1 dollar in euros from the start
    Type(0, 0, "100");
    EXPECT_EQ(Amount(0, 1)->text(), "80.00");
    Type(0, 1, "40");
    EXPECT_EQ(Amount(0, 0)->text(), "50.00");
    EXPECT_EQ(Amount(1, 0)->text(), "1");  // the other pairs keep theirs
    QTest::mouseClick(Find<QToolButton>(0, "copy"), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), "50.00");
    Type(0, 1, "x");
    EXPECT_EQ(Amount(0, 0)->text(), "");
    EXPECT_EQ(Amount(0, 0)->placeholderText(), "not an amount");
}

TEST_F(CurrencyScreen, CurrencyIsFoundByCodeNameAndCountryAndRemembered) {
    Choose(0, 0, "japan");
    Type(0, 0, "16000");
    EXPECT_EQ(Amount(0, 1)->text(), "80.00");
    Choose(0, 1, "gbp");
    EXPECT_EQ(Amount(0, 1)->text(), "50.00");
    const std::uint32_t stored = device.settings.ReadDwordOr(keys::kCurrencies, names::kPairs[0], 0);
    EXPECT_EQ(stored, EncodePair({kYen, kPound}));
}

TEST_F(CurrencyScreen, SwapTurnsThePairAndKeepsTheAmount) {
    Type(0, 0, "100");
    QTest::mouseClick(Find<QToolButton>(0, "swap"), Qt::LeftButton);
    EXPECT_EQ(Amount(0, 0)->text(), "100");
    EXPECT_EQ(Amount(0, 1)->text(), "125.00");
    const std::uint32_t stored = device.settings.ReadDwordOr(keys::kCurrencies, names::kPairs[0], 0);
    EXPECT_EQ(stored, EncodePair({kEuro, kDollar}));
}

TEST_F(CurrencyScreen, RateCardStandsWhereThereIsRoomAndFollowsTheChoice) {
    const auto* card = screen->findChild<QWidget*>("rateCard");
    EXPECT_FALSE(card->isVisible());
    screen->resize(1180, 756);
    ASSERT_TRUE(card->isVisible());
    const QRect panel = screen->findChild<CPairPanel*>("pair2")->geometry();
    EXPECT_FALSE(card->geometry().intersects(panel));
    EXPECT_EQ(card->accessibleDescription(),
              "1 USD is\n0.8000 EUR, Euro\n0.5000 GBP, Pound Sterling\n160.00 JPY, Japanese Yen\n29/9/2026");
    Choose(1, 0, "euro");
    EXPECT_TRUE(card->accessibleDescription().startsWith("1 EUR is\n")) << card->accessibleDescription().toStdString();
}

TEST_F(CurrencyScreen, UnknownRateIsNamedAndNotCopied) {
    Choose(2, 1, "xxx");
    EXPECT_EQ(Amount(2, 1)->text(), "");
    EXPECT_EQ(Amount(2, 1)->placeholderText(), "rate unknown");
    EXPECT_EQ(Find<QLabel>(2, "rate")->text(), "XXX: rate unknown");
    EXPECT_FALSE(Find<QToolButton>(2, "copy")->isEnabled());
}

TEST_F(CurrencyScreen, SaysHowOldTheRatesAre) {
    EXPECT_EQ(Text("ratesOrigin"), "Rates of 29/9/2026, supplied with the program");
    EXPECT_TRUE(screen->findChild<QLabel*>("updateLabel")->isHidden());
    clock.Set({{2026, 10, 7}, 0, 0, 0, 0});
    screen->Tick();
    EXPECT_EQ(Text("ratesOrigin"), "Rates of 29/9/2026, supplied with the program (out of date)");
    WriteDate(u"2026-10-06", u"feeds.example");
    screen->Refresh();
    EXPECT_EQ(Text("ratesOrigin"), "Source: feeds.example");
    EXPECT_EQ(Text("updateLabel"), "Last update\n 6/10/2026 ");
}

TEST_F(CurrencyScreen, UpdateBringsNewRatesAndTheLabel) {
    QSignalSpy chosen(&*screen, &CCurrencyScreen::UpdateChosen);
    QTest::mouseClick(screen->findChild<QPushButton*>("update"), Qt::LeftButton);
    EXPECT_EQ(chosen.count(), 1);
    Type(0, 0, "100");
    ASSERT_TRUE(database.WriteRate(u"Euro", u"EUR", u"0.9"));
    screen->TakeUpdate({FeedOutcome::kAnswered, true, 1, u"Upd. 2/10/2026 "});
    EXPECT_EQ(Amount(0, 1)->text(), "90.00");
    EXPECT_EQ(Text("updateLabel"), "Upd. 2/10/2026 ");
}

TEST_F(CurrencyScreen, MissingListIsSaidInWords) {
    CMemoryObjectStore none;
    CCurrencyDatabase empty{none};
    empty.EnsureCreated({});
    CCurrencyScreen bare(CCurrencyScreen::Source{empty, device.registry, std::nullopt}, clock, device.resources,
                         device.look);
    bare.show();
    EXPECT_TRUE(bare.findChild<QLabel*>("noCurrencies")->isVisible());
    EXPECT_FALSE(bare.findChild<QWidget*>("pair0")->isVisible());
}

}  // namespace
}  // namespace rlx

#pragma once

#include <QLabel>
#include <QPushButton>
#include <array>
#include <optional>

#include "currency/converter_pairs.h"
#include "currency/ui/pair_panel.h"
#include "currency/ui/rate_card_view.h"
#include "feeds/currency_database.h"
#include "feeds/rates_origin.h"
#include "feeds/rates_update.h"
#include "platform/clock.h"
#include "uikit/look.h"
#include "uikit/screen.h"

namespace rlx {

/// Three currency converters, beside them a rate card where there is room, and below them how old the rates are, where
/// they come from, and the way to newer ones. User-interface thread.
class CCurrencyScreen : public CScreen {
    Q_OBJECT

public:
    /// What the screen shows and keeps. `shippedDate` is the day of the list's rates. All references must outlive the
    /// screen.
    struct Source {
        CCurrencyDatabase& database;
        IRegistry& registry;
        std::optional<Date> shippedDate;
    };

    CCurrencyScreen(const Source& source, const IClock& clock, const ITexts& texts, const CLook& look);

    void Refresh() override;
    void Tick() override;

    /// How the screen lies, for the request and the update label.
    RatesLayout Layout() const;

    /// Shows what an update has brought.
    void TakeUpdate(const RatesUpdateResult& result);

signals:
    /// The user wants newer rates.
    void UpdateChosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeFooter();
    void ShowOrigin();
    void ShowCard();
    void Arrange();
    void ArrangeWords(QRect words, bool sideBySide);
    void TakeColours();

    Source m_source;
    const IClock& m_clock;
    const ITexts& m_texts;
    const CLook& m_look;
    CConverterPairs m_pairs;
    CurrencyList m_currencies;
    std::array<CPairPanel*, kConverterPairs> m_panels{};
    QLabel* m_empty;
    QLabel* m_updateLabel;
    QLabel* m_origin;
    QPushButton* m_update;
    CRateCardView* m_card;
    std::size_t m_cardPair = 0;             ///< the pair that was changed last: the card is about its first currency
    std::optional<std::u16string> m_label;  ///< of the last update in this run
    Date m_today;
};

}  // namespace rlx

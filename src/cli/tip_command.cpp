#include <memory>
#include <optional>
#include <string>

#include "base/text.h"
#include "cli/commands.h"
#include "tools/tiptax/text_ids.h"
#include "tools/tiptax/tip_calculator.h"

namespace rlx::cli {

namespace {

struct TipWords {
    std::string bill;
    std::optional<std::string> rates[2];
    bool leftOut[2] = {false, false};
};

/// Words are taken as the page's fields take them: a rate that is refused is told and taken back, and the answer is
/// that of the rate before it, 0.
int Show(CSession& session, CAnswer& answer, const TipWords& words) {
    CTipCalculator tip(session.Texts(), session.Boxes());
    tip.EditBill(FromUtf8(words.bill));
    for (const TipRate rate : {TipRate::kFirst, TipRate::kSecond}) {
        const auto at = static_cast<std::size_t>(rate);
        tip.SetAdded(rate, !words.leftOut[at]);
        if (words.rates[at]) tip.EditRate(rate, FromUtf8(*words.rates[at]));
    }
    answer.Set("firstAmount", ToJson(tip.AmountText(TipRate::kFirst)));
    answer.Set("secondAmount", ToJson(tip.AmountText(TipRate::kSecond)));
    answer.Set("total", ToJson(tip.TotalText()));
    answer.Table({{session.Text(kTextService), tip.AmountText(TipRate::kFirst)},
                  {session.Text(kTextTax), tip.AmountText(TipRate::kSecond)},
                  {session.Text(kTextTotal), tip.TotalText()}});
    return kDone;
}

}  // namespace

void DeclareTip(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<TipWords>();
    app.add_option("BILL", words->bill, "amount of the bill")->required();
    app.add_option("--first", words->rates[0], "percent of the first amount (service), 0 to 100")->type_name("RATE");
    app.add_option("--second", words->rates[1], "percent of the second amount (tax), 0 to 100")->type_name("RATE");
    app.add_flag("--no-first", words->leftOut[0], "do not add the first amount to the total");
    app.add_flag("--no-second", words->leftOut[1], "do not add the second amount to the total");
    app.callback([setAction, words] { setAction([words](CSession& s, CAnswer& a) { return Show(s, a, *words); }); });
}

}  // namespace rlx::cli

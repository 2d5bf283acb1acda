#include <memory>

#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "shell/boxes.h"
#include "shell/text_ids.h"
#include "tools/converter/conversion.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/unit_database.h"
#include "tools/converter/unit_search.h"

namespace rlx::cli {

namespace {

struct ConvertWords {
    std::string value;
    std::string from;
    std::string to;
    std::optional<std::size_t> category;
};

int Convert(CSession& session, CAnswer& answer, const ConvertWords& words) {
    CUnitDatabase database(session.ObjectStore());
    if (!database.Open()) return session.Fail(session.Text(kTextFileNotRead, u"rlxConverters"));
    const UnitTables tables = database.ReadTables();
    const UnitPair pair = FindUnitPair(tables, FromUtf8(words.from), FromUtf8(words.to), words.category);
    if (pair.status != PairStatus::kFound) return session.Fail(PairMessage(pair, session.Texts()));
    const double value = ParseNumber(FromUtf8(words.value));
    const auto result = rlx::Convert(value, tables, pair.category, pair.from, pair.to);
    const std::u16string text = ResultText(result.value_or(0), session.Texts());
    answer.Set("result", ToJson(result.value_or(0)));
    answer.Set("text", ToJson(text));
    if (!result) return session.Fail(session.Text(kTextBelowAbsoluteZero));
    answer.Line(text);
    return kDone;
}

}  // namespace

void DeclareConvert(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<ConvertWords>();
    app.add_option("VALUE", words->value, "the number to convert")->required();
    app.add_option("FROM", words->from, "unit, or a beginning that fits one unit")->required();
    app.add_option("TO", words->to, "unit, or a beginning that fits one unit")->required();
    const auto take = [words](std::int64_t number) { words->category = static_cast<std::size_t>(number); };
    AddInteger(app, "--category", {0, kCategoryCount - 1}, take, "the category of both units");
    app.callback([setAction, words] { setAction([words](CSession& s, CAnswer& a) { return Convert(s, a, *words); }); });
}

}  // namespace rlx::cli

#include <memory>

#include "base/number.h"
#include "cli/commands.h"
#include "cli/text_ids.h"

namespace rlx::cli {

namespace {

int ShowText(CSession& session, CAnswer& answer, int number) {
    const std::u16string text = session.Texts().Text(number);
    if (text.empty()) return session.Fail(session.Text(kTextNoSuchText, FormatInteger(number)));
    answer.Set("text", ToJson(text));
    answer.Line(text);
    return kDone;
}

}  // namespace

void DeclareLang(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(1);
    auto number = std::make_shared<int>(0);
    CLI::App* text = DeclareSub(app, "text", "one text of the language in force", setAction,
                                [number](CSession& s, CAnswer& a) { return ShowText(s, a, *number); });
    const auto take = [number](std::int64_t value) { *number = static_cast<int>(value); };
    AddInteger(*text, "NUMBER", {0, 65535}, take, "number of the text")->required();
}

}  // namespace rlx::cli

#include <array>
#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "shell/resources.h"
#include "tools/clothing/clothing_page.h"
#include "tools/clothing/text_ids.h"

namespace rlx::cli {

namespace {

/// In the order of `Audience`.
constexpr std::array<const char*, kAudienceCount> kAudiences = {"men", "women", "children"};

struct SizesWords {
    std::string garment;
    std::string audience;
};

std::optional<Audience> AudienceNamed(const std::string& word) {
    for (std::size_t i = 0; i < kAudiences.size(); ++i) {
        if (word == kAudiences[i]) return static_cast<Audience>(i);
    }
    return std::nullopt;
}

int Show(CSession& session, CAnswer& answer, const SizesWords& words) {
    const std::u16string word = FromUtf8(words.garment);
    auto garment = FindGarment(word, session.Texts());
    // A script goes on in English whatever language is in force.
    if (!garment) garment = FindGarment(word, CResources());
    if (!garment) return session.Fail(session.Text(kTextNoSuchGarment, word));
    CClothingPage page;
    page.Select(*garment);
    if (const auto audience = AudienceNamed(words.audience)) page.Press(*audience);
    const SizeTable& table = page.Table();
    const std::u16string title = TitleText(session.Text(table.title));
    const auto pressed = page.Pressed();
    Json lines = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const SizeLine& line : table.lines) {
        lines.push_back(ToJson(LineText(line)));
        rows.push_back({std::u16string(line.country)});
        if (line.note.empty()) {
            rows.back().insert(rows.back().end(), line.cells.begin(),
                               line.cells.begin() + static_cast<std::ptrdiff_t>(ColumnsOf(table)));
        }
    }
    answer.Set("title", ToJson(title));
    answer.Set("lines", std::move(lines));
    answer.Set("audience", pressed ? Json(kAudiences[static_cast<std::size_t>(*pressed)]) : Json(nullptr));
    answer.Line(title);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        // A free text would make the first column of sizes as wide as itself.
        if (!table.lines[i].note.empty()) rows[i] = {LineText(table.lines[i])};
    }
    answer.Table(rows);
    answer.Line(session.Text(kTextSizesGuideline));
    return kDone;
}

}  // namespace

void DeclareSizes(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<SizesWords>();
    app.add_option("CATEGORY", words->garment, "number from 0, name or beginning of a name")->required();
    app.add_option("AUDIENCE", words->audience, "men, women or children")->check([](const std::string& word) {
        return AudienceNamed(word) ? std::string() : "\"" + word + "\" is none of men, women, children";
    });
    app.callback([setAction, words] { setAction([words](CSession& s, CAnswer& a) { return Show(s, a, *words); }); });
}

}  // namespace rlx::cli

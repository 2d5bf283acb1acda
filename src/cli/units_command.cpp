#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "shell/resources.h"
#include "shell/text_ids.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/unit_database.h"
#include "tools/converter/unit_editor.h"

namespace rlx::cli {

namespace {

struct UnitWords {
    std::string category;
    std::string name;
    std::string value;
};

/// Opens the database and finds the category; nothing when either fails, which has then been told. The category is
/// empty when none was named.
struct OpenedUnits {
    CUnitDatabase database;
    std::optional<std::size_t> category;
};

std::optional<OpenedUnits> Open(CSession& session, const UnitWords& words) {
    OpenedUnits units{CUnitDatabase(session.ObjectStore()), std::nullopt};
    if (!words.category.empty()) {
        const std::u16string word = FromUtf8(words.category);
        units.category = FindCategory(word, session.Texts());
        // A script goes on in English whatever language is in force.
        if (!units.category) units.category = FindCategory(word, CResources());
        if (!units.category) {
            session.Fail(session.Text(kTextNoSuchMeasure, word));
            return std::nullopt;
        }
    }
    if (!units.database.Open()) {
        session.Fail(session.Text(kTextFileNotRead, u"rlxConverters"));
        return std::nullopt;
    }
    return units;
}

int Answer(CAnswer& answer, OpenedUnits& units) {
    Json list = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const UnitRecord& unit : units.database.ReadAll()) {
        if (units.category && unit.code != CategoryCode(*units.category)) continue;
        list.push_back({{"category", ToJson(unit.code)}, {"name", ToJson(unit.name)}, {"factor", ToJson(unit.factor)}});
        rows.push_back({unit.code, unit.name, unit.factor});
    }
    answer.Set("units", std::move(list));
    answer.Table(rows);
    return kDone;
}

int List(CSession& session, CAnswer& answer, const UnitWords& words) {
    auto units = Open(session, words);
    return units ? Answer(answer, *units) : kFailed;
}

/// `change` adds or deletes, and has told what stood against it.
template <typename Change>
int Edit(CSession& session, CAnswer& answer, const UnitWords& words, Change change) {
    auto units = Open(session, words);
    if (!units) return kFailed;
    CUnitEditor editor(units->database, session.Texts(), session.Boxes());
    if (!change(editor, units->category.value_or(kCategoryCount))) return kFailed;
    if (!session.KeepsChanges()) return session.Fail(session.Text(kTextUnitsNotSaved));
    return Answer(answer, *units);
}

}  // namespace

void DeclareUnits(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<UnitWords>();
    const char* const categoryHelp = "number, name or beginning of a name";
    app.require_subcommand(1);
    CLI::App* list = DeclareSub(app, "list", "all units, or those of one category", setAction,
                                [words](CSession& s, CAnswer& a) { return List(s, a, *words); });
    list->add_option("CATEGORY", words->category, categoryHelp);
    const auto add = [words](CUnitEditor& editor, std::size_t category) {
        return editor.Add(category, FromUtf8(words->name), FromUtf8(words->value));
    };
    const auto remove = [words](CUnitEditor& editor, std::size_t category) {
        return editor.Delete(category, FromUtf8(words->name));
    };
    CLI::App* adding = DeclareSub(app, "add", "add a unit", setAction,
                                  [words, add](CSession& s, CAnswer& a) { return Edit(s, a, *words, add); });
    CLI::App* deleting = DeclareSub(app, "delete", "delete a unit, after a question", setAction,
                                    [words, remove](CSession& s, CAnswer& a) { return Edit(s, a, *words, remove); });
    for (CLI::App* sub : {adding, deleting}) {
        sub->add_option("CATEGORY", words->category, categoryHelp)->required();
        sub->add_option("NAME", words->name, "whole name of the unit")->required();
    }
    adding->add_option("VALUE", words->value, "base units in one of this unit")->required();
}

}  // namespace rlx::cli

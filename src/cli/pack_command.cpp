#include <functional>
#include <memory>
#include <string>

#include "base/text.h"
#include "cli/commands.h"
#include "tools/packing/packing_organizer.h"

namespace rlx::cli {

namespace {

/// Names as they were typed; those that a command does not take stay empty.
struct PackWords {
    std::string category;
    std::string list;
    std::string text;
};

/// Changes the lists; false when it was refused or declined, which has been told.
using Change = std::function<bool(CPackingOrganizer&, const PackWords&)>;

void Fill(CAnswer& answer, const CPackingLists& lists) {
    Json categories = Json::array();
    for (const PackingCategory& category : lists.Categories()) {
        answer.Line(category.name);
        Json listsOfCategory = Json::array();
        for (const PackingList& list : category.lists) {
            answer.Line(u"  " + list.name);
            Json items = Json::array();
            for (const PackingItem& item : list.items) {
                answer.Line((item.ticked ? u"    [x] " : u"    [ ] ") + item.text);
                items.push_back({{"text", ToJson(item.text)}, {"ticked", item.ticked}});
            }
            listsOfCategory.push_back({{"name", ToJson(list.name)}, {"items", std::move(items)}});
        }
        categories.push_back({{"name", ToJson(category.name)}, {"lists", std::move(listsOfCategory)}});
    }
    answer.Set("categories", std::move(categories));
}

/// Without a change only shows the lists. What is refused writes nothing.
int Run(CSession& session, CAnswer& answer, const PackWords& words, const Change& change) {
    CPackingOrganizer organizer(session.Files(), session.Folder().Root(), session.Texts(), session.Boxes());
    organizer.Load();
    if (change && !(change(organizer, words) && organizer.Save())) return kFailed;
    Fill(answer, organizer.Lists());
    return kDone;
}

bool Select(CPackingOrganizer& organizer, const PackWords& words) {
    return organizer.SelectNamed(FromUtf8(words.category), FromUtf8(words.list));
}

/// A change of the list that the words name.
Change OnList(bool (CPackingOrganizer::*act)()) {
    return [act](CPackingOrganizer& organizer, const PackWords& words) {
        return Select(organizer, words) && (organizer.*act)();
    };
}

/// A change of the item that the words name.
Change OnItem(std::function<bool(CPackingOrganizer&, std::size_t)> act) {
    return [act = std::move(act)](CPackingOrganizer& organizer, const PackWords& words) {
        if (!Select(organizer, words)) return false;
        const auto item = organizer.ItemNamed(FromUtf8(words.text));
        return item && act(organizer, *item);
    };
}

bool AddCategory(CPackingOrganizer& organizer, const PackWords& words) {
    return organizer.AddCategory(FromUtf8(words.category));
}

/// The list does not exist yet: only its category is looked up.
bool AddList(CPackingOrganizer& organizer, const PackWords& words) {
    return organizer.SelectNamed(FromUtf8(words.category), {}) && organizer.AddList(FromUtf8(words.list));
}

bool AddItem(CPackingOrganizer& organizer, const PackWords& words) {
    return Select(organizer, words) && organizer.AddItem(FromUtf8(words.text));
}

bool Tick(CPackingOrganizer& organizer, std::size_t item) {
    return organizer.SetTicked(item, true);
}

bool Untick(CPackingOrganizer& organizer, std::size_t item) {
    return organizer.SetTicked(item, false);
}

bool DeleteItem(CPackingOrganizer& organizer, std::size_t item) {
    return organizer.DeleteItem(item);
}

struct Verb {
    const char* name;
    const char* help;
    int words;  ///< 0 none, 1 CATEGORY, 2 and its LIST, 3 and the TEXT of an item
    Change change;
};

void DeclareVerb(CLI::App& app, const SetAction& setAction, const Verb& verb) {
    auto words = std::make_shared<PackWords>();
    CLI::App* sub = DeclareSub(app, verb.name, verb.help, setAction,
                               [words, change = verb.change](auto& s, auto& a) { return Run(s, a, *words, change); });
    if (verb.words > 0) sub->add_option("CATEGORY", words->category, "name of a category")->required();
    if (verb.words > 1) sub->add_option("LIST", words->list, "name of a list")->required();
    if (verb.words > 2) sub->add_option("TEXT", words->text, "text of an item")->required();
}

}  // namespace

void DeclarePack(CLI::App& app, const SetAction& setAction) {
    app.require_subcommand(1);
    const Verb verbs[] = {
        {"show", "all categories, lists and items", 0, nullptr},
        {"add-category", "add a category", 1, AddCategory},
        {"add-list", "add a list to a category", 2, AddList},
        {"add-item", "add an item to a list", 3, AddItem},
        {"tick", "tick an item off", 3, OnItem(Tick)},
        {"untick", "take an item's tick away", 3, OnItem(Untick)},
        {"delete-category", "delete a category with its lists", 1, OnList(&CPackingOrganizer::DeleteCategory)},
        {"delete-list", "delete a list", 2, OnList(&CPackingOrganizer::DeleteList)},
        {"delete-item", "delete an item from a list", 3, OnItem(DeleteItem)},
        {"clear", "delete all items of a list", 2, OnList(&CPackingOrganizer::DeleteAllItems)},
        {"uncheck", "take all ticks of a list away", 2, OnList(&CPackingOrganizer::UncheckAll)},
    };
    for (const Verb& verb : verbs)
        DeclareVerb(app, setAction, verb);
}

}  // namespace rlx::cli

#include <algorithm>
#include <memory>

#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/text_ids.h"
#include "shell/boxes.h"
#include "shell/language_install.h"
#include "shell/language_start.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "skins/text_ids.h"

namespace rlx::cli {

namespace {

struct LangWords {
    std::string folder;
    std::string module;
    bool move = false;
    std::uint32_t index = 0;
    int number = 0;
};

/// The languages of "langs.dat"; nothing when it cannot be read, and the session has said so.
std::optional<CLanguageList> Languages(CSession& session) {
    auto list = ReadLanguageList(session.Files(), session.Folder(), session.Texts());
    if (!list) session.Fail(session.Text(kTextFileNotRead, FromUtf8(LanguageListFile(session.Folder()).string())));
    return list;
}

int List(CSession& session, CAnswer& answer) {
    const auto list = Languages(session);
    if (!list) return kFailed;
    Json languages = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const Language& language : list->Languages()) {
        languages.push_back(
            {{"index", language.index}, {"name", ToUtf8(language.name)}, {"module", ToUtf8(language.module)}});
        rows.push_back({FormatInteger(language.index), language.name, language.module});
    }
    answer.Set("languages", std::move(languages));
    answer.Table(rows);
    return kDone;
}

/// The folder that a word names; the module folder under its own name, by whatever way it was named.
std::filesystem::path FolderOf(CSession& session, const std::string& word) {
    std::error_code error;
    const auto modules = ModuleFolder(session.Folder());
    return std::filesystem::equivalent(word, modules, error) ? modules : std::filesystem::path(word);
}

int Install(CSession& session, CAnswer& answer, const LangWords& words) {
    const auto folder = FolderOf(session, words.folder);
    if (!session.Files().IsFolder(folder)) return session.Fail(session.Text(kTextNoSuchFolder, FromUtf8(words.folder)));
    const InstallRequest request{folder, FromUtf8(words.module), words.move, session.LanguageModule()};
    const auto outcome = InstallLanguage(session.Files(), session.Folder(), session.Texts(), request);
    const bool done = outcome == InstallOutcome::kInstalled || outcome == InstallOutcome::kInUse;
    const auto message = InstallMessage(outcome, request, session.Texts());
    if (!done) return session.Fail(message);
    if (!message.empty()) session.Boxes().Show(NoteBox(session.Texts(), message));
    return List(session, answer);
}

int Use(CSession& session, CAnswer& answer, std::uint32_t index) {
    const auto list = Languages(session);
    if (!list) return kFailed;
    const auto languages = list->Languages();
    const bool listed =
        std::any_of(languages.begin(), languages.end(), [&](const auto& l) { return l.index == index; });
    if (!listed) return session.Fail(session.Text(kTextNoSuchLanguage, FormatInteger(index)));
    // In the language that this run began with.
    const MessageBox restart = NoteBox(session.Texts(), session.Text(kTextRestartForLanguage));
    if (!WriteLanguageSetting(session.Settings(), index) || !session.KeepsChanges()) {
        return session.Fail(
            session.Text(kTextSettingNotWritten, std::u16string(keys::kRoamlytix), std::u16string(names::kLanguage)));
    }
    session.Boxes().Show(restart);
    return List(session, answer);
}

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
    auto words = std::make_shared<LangWords>();
    DeclareSub(app, "list", "the languages that are installed", setAction, &List);
    CLI::App* install = DeclareSub(app, "install", "add a language module", setAction,
                                   [words](CSession& s, CAnswer& a) { return Install(s, a, *words); });
    install->add_option("FOLDER", words->folder, "folder with the module")->required();
    install->add_option("MODULE", words->module, "file name of the module, as in RoamlyFrench.dll")->required();
    install->add_flag("--move", words->move, "remove the file from its folder");
    CLI::App* use = DeclareSub(app, "use", "choose the language of the next start", setAction,
                               [words](CSession& s, CAnswer& a) { return Use(s, a, words->index); });
    AddInteger(
        *use, "INDEX", {0, 0xFFFFFFFF},
        [words](std::int64_t value) { words->index = static_cast<std::uint32_t>(value); },
        "number of the language in the list")
        ->required();
    CLI::App* text = DeclareSub(app, "text", "one text of the language in force", setAction,
                                [words](CSession& s, CAnswer& a) { return ShowText(s, a, words->number); });
    const auto take = [words](std::int64_t value) { words->number = static_cast<int>(value); };
    AddInteger(*text, "NUMBER", {0, 65535}, take, "number of the text")->required();
}

}  // namespace rlx::cli

#include <memory>

#include "base/text.h"
#include "cli/commands.h"
#include "cli/text_ids.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "skins/skin_file.h"
#include "skins/skin_list.h"
#include "skins/skin_loader.h"
#include "skins/skin_validator.h"
#include "skins/text_ids.h"

namespace rlx::cli {

namespace {

struct SkinWords {
    std::string file;
    std::string section;
    std::optional<std::string> key;
};

/// A file or folder that was named on the command line, from the root of the file system.
std::filesystem::path FullPath(const std::string& word) {
    std::error_code error;
    const auto path = std::filesystem::absolute(word, error).lexically_normal();
    return error ? std::filesystem::path(word) : path;
}

std::vector<std::u16string> LinesOf(const std::vector<SkinFault>& faults, const ITexts& texts) {
    std::vector<std::u16string> lines;
    lines.reserve(faults.size());
    for (const SkinFault& fault : faults)
        lines.push_back(FaultText(fault, texts));
    return lines;
}

/// The section, and with a key its value too, as the program's lookups give them.
int Show(CSession& session, CAnswer& answer, const SkinWords& words) {
    const auto text = ReadSkinText(session.Files(), words.file);
    if (!text) return session.Fail(session.Text(kTextFileNotRead, FromUtf8(words.file)));
    const auto section = SectionText(*text, FromUtf8(words.section));
    const std::u16string shown = DecodedSkinValue(section);
    answer.Set("section", ToJson(shown));
    if (!words.key) {
        answer.Set("value", nullptr);
        answer.Line(shown);
        return kDone;
    }
    const std::u16string value = DecodedSkinValue(KeyValue(section, FromUtf8(*words.key)));
    answer.Set("value", ToJson(value));
    answer.Line(value);
    return kDone;
}

/// A skin with faults is an answer, not a failure.
int Check(CSession& session, CAnswer& answer, const std::string& file) {
    const auto lines = LinesOf(ValidateSkin(session.Files(), FullPath(file)), session.Texts());
    answer.Set("valid", lines.empty());
    answer.Set("faults", ToJson(lines));
    if (lines.empty()) answer.Line(session.Text(kTextSkinComplete));
    for (const std::u16string& line : lines)
        answer.Line(line);
    return kDone;
}

/// The entry that says that there are none has no file.
Json EntryOf(const SkinEntry& skin, const std::vector<std::u16string>& lines) {
    const bool isSkin = !skin.file.empty();
    return {{"name", ToUtf8(skin.text)},
            {"file", isSkin ? Json(skin.file.string()) : Json(nullptr)},
            {"valid", isSkin && lines.empty()},
            {"faults", ToJson(lines)}};
}

int List(CSession& session, CAnswer& answer, const std::string& folder) {
    const auto path = FullPath(folder);
    if (!session.Files().IsFolder(path)) return session.Fail(session.Text(kTextNoSuchFolder, FromUtf8(folder)));
    Json skins = Json::array();
    for (const SkinEntry& skin : ListSkins(session.Files(), path, session.Texts())) {
        const auto lines = LinesOf(skin.faults, session.Texts());
        skins.push_back(EntryOf(skin, lines));
        answer.Line(skin.text + (lines.empty() ? u"" : session.Text(kTextInvalidMark)));
        if (!skin.file.empty()) answer.Line("  " + skin.file.string());
        for (const std::u16string& line : lines)
            answer.Line(u"  " + line);
    }
    answer.Set("skins", std::move(skins));
    return kDone;
}

/// Puts a valid skin into the settings. The word "default" is the default skin, not a file of that name.
int Use(CSession& session, const std::string& word) {
    const auto& root = session.Folder().Root();
    const auto file =
        FromUtf8(word) == kDefaultSkinSetting ? SkinFileOfSetting(root, kDefaultSkinSetting) : FullPath(word);
    if (!ValidateSkin(session.Files(), file).empty()) return session.Fail(session.Text(kTextSkinInvalid));
    const auto setting = SettingOfSkinFile(root, file);
    if (!setting) return session.Fail(session.Text(kTextSkinPathRefused, FromUtf8(word)));
    const bool written =
        session.Settings().WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin, *setting);
    if (written && session.KeepsChanges()) return kDone;
    return session.Fail(
        session.Text(kTextSettingNotWritten, std::u16string(keys::kRoamlytix), std::u16string(names::kSkin)));
}

}  // namespace

void DeclareSkin(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<SkinWords>();
    app.require_subcommand(1);
    CLI::App* show = DeclareSub(app, "show", "a section of a skin file, or one value of it", setAction,
                                [words](CSession& s, CAnswer& a) { return Show(s, a, *words); });
    show->add_option("FILE", words->file, "skin file")->required();
    show->add_option("SECTION", words->section, "name of the section")->required();
    show->add_option("KEY", words->key, "key in the section");
    CLI::App* check = DeclareSub(app, "check", "whether a skin is complete", setAction,
                                 [words](CSession& s, CAnswer& a) { return Check(s, a, words->file); });
    check->add_option("FILE", words->file, "skin file")->required();
    CLI::App* list = DeclareSub(app, "list", "the skins of a folder and of the folders in it", setAction,
                                [words](CSession& s, CAnswer& a) { return List(s, a, words->file); });
    list->add_option("DIR", words->file, "folder")->required();
    CLI::App* use = DeclareSub(app, "use", "choose the skin of the window", setAction,
                               [words](CSession& s, CAnswer&) { return Use(s, words->file); });
    use->add_option("FILE", words->file, "skin file, or \"default\"")->required();
}

}  // namespace rlx::cli

#include "skins/skin_list.h"

#include "base/text.h"
#include "skins/skin.h"
#include "skins/skin_file.h"
#include "skins/text_ids.h"

namespace rlx {
namespace {

constexpr std::u16string_view kExtension = u".skn";

bool IsSkinName(const std::string& name) {
    const auto text = FromUtf8(name);
    return text.size() > kExtension.size() &&
           EqualIgnoringCase(std::u16string_view(text).substr(text.size() - kExtension.size()), kExtension);
}

void AddSkinsOf(IFileSystem& files, const std::filesystem::path& folder, std::vector<SkinEntry>& entries) {
    for (const auto& name : files.ListFiles(folder)) {
        if (IsSkinName(name)) entries.push_back(SkinEntryOf(files, folder / name));
    }
}

}  // namespace

SkinEntry SkinEntryOf(IFileSystem& files, const std::filesystem::path& file) {
    SkinEntry entry{{}, file, ValidateSkin(files, file)};
    if (auto text = ReadSkinText(files, file)) {
        entry.text = Trim(CSkin(*std::move(text), file.parent_path()).Name(SkinKey::kDescriptionN));
    }
    if (entry.text.empty()) entry.text = FromUtf8(file.filename().string());
    return entry;
}

std::vector<SkinEntry> ListSkins(IFileSystem& files, const std::filesystem::path& folder, const ITexts& texts) {
    std::vector<SkinEntry> entries;
    AddSkinsOf(files, folder, entries);
    for (const auto& name : files.ListFolders(folder))
        AddSkinsOf(files, folder / name, entries);
    if (entries.empty()) entries.push_back({texts.Text(kTextNoSkins), {}, {}});
    return entries;
}

}  // namespace rlx

#include "skins/skin.h"

#include <utility>

#include "shell/device_path.h"
#include "skins/icon_set.h"
#include "skins/skin_file.h"

namespace rlx {
namespace {

constexpr std::uint32_t kRgbMask = 0xFFFFFF;

std::optional<SkinKey> BackgroundKey(SkinSection screen, SkinLayout layout) {
    constexpr SkinKeyKind kKinds[] = {SkinKeyKind::kImageP, SkinKeyKind::kImageL, SkinKeyKind::kImageS};
    for (const SkinKeyRow& row : kSkinKeys) {
        if (row.section == screen && row.kind == kKinds[static_cast<std::size_t>(layout)]) return row.key;
    }
    return std::nullopt;
}

}  // namespace

CSkin::CSkin(std::u16string text, std::filesystem::path folder)
    : m_text(std::move(text)), m_folder(std::move(folder)) {}

std::u16string CSkin::Value(SkinKey key) const {
    const SkinKeyRow& row = RowOf(key);
    return KeyValue(SectionText(m_text, NameOf(row.section)), row.name);
}

std::u16string CSkin::Name(SkinKey key) const {
    const auto value = Value(key);
    return value == kSkinMissing ? std::u16string() : DecodedSkinValue(value);
}

std::uint32_t CSkin::Colour(SkinKey key) const {
    const auto value = Value(key);
    const auto colour = value == kSkinMissing ? std::nullopt : ParseSkinColour(value);
    return colour.value_or(RowOf(key).fallback) & kRgbMask;
}

std::optional<std::filesystem::path> CSkin::Background(IFileSystem& files, SkinSection screen,
                                                       SkinLayout layout) const {
    const auto key = BackgroundKey(screen, layout);
    if (!key || Name(*key).empty()) return std::nullopt;
    return FileBelow(files, Name(FolderKeyOf(layout)) + Name(*key));
}

std::optional<std::filesystem::path> CSkin::Picture(IFileSystem& files, SkinKey key, SkinLayout layout) const {
    const auto name = Name(key);
    if (name.empty()) return std::nullopt;
    auto file = FileBelow(files, Name(FolderKeyOf(layout)) + name);
    return file ? file : FileBelow(files, name);
}

std::optional<std::filesystem::path> CSkin::CommonPicture(IFileSystem& files, SkinLayout layout) const {
    const auto name = Name(SkinKey::kGeneralIF);
    const auto slash = name.rfind(u'\\');
    if (slash == std::u16string::npos) return std::nullopt;
    auto file = FileBelow(files, Name(FolderKeyOf(layout)) + name.substr(slash));
    return file ? file : FileBelow(files, name);
}

std::optional<std::filesystem::path> CSkin::IconFolder(IFileSystem& files) const {
    const auto name = Name(SkinKey::kWeatherWICOF);
    if (name.empty() || IsDefaultIconSet(name)) return std::nullopt;
    auto folder = ResolveBelow(files, m_folder, name);
    if (folder && !files.IsFolder(*folder)) folder.reset();
    return folder;
}

std::optional<std::filesystem::path> CSkin::FileBelow(IFileSystem& files, const std::u16string& name) const {
    auto file = ResolveBelow(files, m_folder, name);
    if (file && !files.IsFile(*file)) file.reset();
    return file;
}

}  // namespace rlx

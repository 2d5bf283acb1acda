#include "skins/skin_draft.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "shell/device_path.h"
#include "skins/skin_file.h"

namespace rlx {
namespace {

constexpr std::u16string_view kFolderOfSets = u"\\wiconsets";
constexpr std::array<std::u16string_view, 4> kPictureEndings = {u".jpg", u".jpeg", u".png", u".bmp"};

bool IsPictureName(const std::string& name) {
    if (!IsUtf8(name) || name.find_first_of("<>*[\\\r\n") != std::string::npos) return false;
    const auto text = FromUtf8(name);
    return std::any_of(kPictureEndings.begin(), kPictureEndings.end(), [&](std::u16string_view ending) {
        return text.size() > ending.size() &&
               EqualIgnoringCase(std::u16string_view(text).substr(text.size() - ending.size()), ending);
    });
}

SkinLayout LayoutOf(SkinKeyKind kind) {
    if (kind == SkinKeyKind::kImageL) return SkinLayout::kLandscape;
    return kind == SkinKeyKind::kImageS ? SkinLayout::kSquare : SkinLayout::kPortrait;
}

}  // namespace

bool IsEditable(SkinKeyKind kind) {
    return IsColour(kind) || kind == SkinKeyKind::kImageP || kind == SkinKeyKind::kImageL ||
           kind == SkinKeyKind::kImageS || kind == SkinKeyKind::kFolderOfImage || kind == SkinKeyKind::kIconSet;
}

std::optional<CSkinDraft> CSkinDraft::Open(IFileSystem& files, const std::filesystem::path& file, bool defaultSkin) {
    auto text = files.ReadFile(file, kMostSkinBytes);
    if (!text) return std::nullopt;
    return CSkinDraft(files, file, defaultSkin, *std::move(text));
}

CSkinDraft::CSkinDraft(IFileSystem& files, std::filesystem::path file, bool defaultSkin, std::string text)
    : m_files(&files), m_file(std::move(file)), m_defaultSkin(defaultSkin), m_text(std::move(text)) {
    m_original = SkinOf(m_text);
}

CSkin CSkinDraft::SkinOf(const std::string& text) const {
    CMemoryStream stream(text);
    return {ReadSkinText(stream), m_file.parent_path()};
}

CSkin CSkinDraft::Skin() const {
    std::vector<SkinKey> found;
    return SkinOf(RewriteSkin(m_text, m_edit.Lines(m_defaultSkin), found));
}

CSkinDraft::Pictures CSkinDraft::PicturesFor(SkinKey key) const {
    Pictures pictures;
    pictures.path = m_original.Name(FolderKeyOf(LayoutOf(RowOf(key).kind)));
    const auto folder = ResolveBelow(*m_files, m_original.Folder(), pictures.path);
    if (pictures.path.empty() || !folder) return pictures;
    pictures.folder = *folder;
    for (auto& name : m_files->ListFiles(*folder)) {
        if (IsPictureName(name)) pictures.names.push_back(std::move(name));
    }
    return pictures;
}

std::vector<std::u16string> CSkinDraft::IconSets() const {
    std::vector<std::u16string> sets;
    const auto parent = ResolveBelow(*m_files, m_original.Folder(), kFolderOfSets);
    if (!parent) return sets;
    for (const auto& name : m_files->ListFolders(*parent)) {
        if (IsUtf8(name)) sets.push_back(std::u16string(kFolderOfSets) + u"\\" + FromUtf8(name));
    }
    return sets;
}

SkinWriteResult CSkinDraft::Save() {
    SkinWriteResult result = WriteSkin(*m_files, m_file, m_edit, m_defaultSkin);
    if (result.status != SkinWriteStatus::kWritten) return result;
    m_text = m_files->ReadFile(m_file, kMostSkinBytes).value_or(m_text);
    m_original = SkinOf(m_text);
    m_edit = {};
    return result;
}

}  // namespace rlx

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/file_system.h"
#include "skins/skin_schema.h"

namespace rlx {

/// What screens read of one skin: colours, and pictures as files of the host. Holds the text, not the pictures. Copies
/// are cheap. Every lookup answers, whatever the file holds. One thread at a time.
class CSkin {
public:
    /// A skin without a text: all fallbacks, no pictures.
    CSkin() = default;

    /// `text` as `ReadSkinText` gives it; pictures lie below `folder`.
    CSkin(std::u16string text, std::filesystem::path folder);

    /// The value as it stands in the file, or `kSkinMissing`.
    std::u16string Value(SkinKey key) const;

    /// The value of a name or path, decoded; empty when missing.
    std::u16string Name(SkinKey key) const;

    /// 0xBBGGRR; the table's fallback where the skin has no such number. The top byte is 0.
    std::uint32_t Colour(SkinKey key) const;

    /// The background of the Clocks, Weather or Map screen. Nothing when there is no such file in the skin's folder;
    /// the same for the pictures below.
    std::optional<std::filesystem::path> Background(IFileSystem& files, SkinSection screen, SkinLayout layout) const;

    /// `MI` or a background of Tools: the file in the layout's folder, else the one in the skin's folder itself.
    std::optional<std::filesystem::path> Picture(IFileSystem& files, SkinKey key, SkinLayout layout) const;

    /// The picture of pages without a key of their own: the file of the name that `IF` gives in the layout's folder,
    /// else the one that it names.
    std::optional<std::filesystem::path> CommonPicture(IFileSystem& files, SkinLayout layout) const;

    /// The folder of the weather icons. Nothing for the program's own set, and where the folder does not exist.
    std::optional<std::filesystem::path> IconFolder(IFileSystem& files) const;

    const std::filesystem::path& Folder() const { return m_folder; }

    friend bool operator==(const CSkin&, const CSkin&) = default;

private:
    std::optional<std::filesystem::path> FileBelow(IFileSystem& files, const std::u16string& name) const;

    std::u16string m_text;
    std::filesystem::path m_folder;
};

}  // namespace rlx

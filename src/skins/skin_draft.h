#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "skins/skin.h"
#include "skins/skin_writer.h"

namespace rlx {

/// A skin file while it is edited: what it holds, what was changed, and what it would become. The file itself is
/// touched by `Save` alone. One thread at a time; the file system must outlive it.
class CSkinDraft {
public:
    /// Nothing when the file cannot be read or is larger than any skin may be.
    static std::optional<CSkinDraft> Open(IFileSystem& files, const std::filesystem::path& file, bool defaultSkin);

    /// The changes so far.
    CSkinEdit& Edit() { return m_edit; }

    /// The skin as the file has it.
    const CSkin& Original() const { return m_original; }

    /// The skin as `Save` would leave it.
    CSkin Skin() const;

    /// True when the value differs from the file's.
    bool IsChanged(SkinKey key) const { return Skin().Value(key) != m_original.Value(key); }

    /// The pictures that a key may name: files below the folder of its layout, ".jpg", ".jpeg", ".png" and ".bmp".
    struct Pictures {
        std::filesystem::path folder;    ///< on the host
        std::u16string path;             ///< the same below the skin's folder, without a backslash behind it
        std::vector<std::string> names;  ///< sorted; only such as the skin file can hold
    };
    Pictures PicturesFor(SkinKey key) const;

    /// The weather icons that the skin may name besides the program's own: the folders below "\wiconsets" of the skin's
    /// folder.
    std::vector<std::u16string> IconSets() const;

    /// Writes the changes back; afterwards the draft is that of the new file, when it was written.
    SkinWriteResult Save();

    const std::filesystem::path& File() const { return m_file; }

private:
    CSkinDraft(IFileSystem& files, std::filesystem::path file, bool defaultSkin, std::string text);
    CSkin SkinOf(const std::string& text) const;

    IFileSystem* m_files;
    std::filesystem::path m_file;
    bool m_defaultSkin;
    std::string m_text;
    CSkin m_original;
    CSkinEdit m_edit;
};

/// True for the keys that an editor can change: colours, the backgrounds BP, BL, BS, the common picture and the weather
/// icons.
bool IsEditable(SkinKeyKind kind);

}  // namespace rlx

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "skins/skin_schema.h"

namespace rlx {

/// A skin file larger than this is no skin.
inline constexpr std::size_t kMostSkinBytes = 1U << 20U;

/// What an editor changed. The sections of the keys given here are the changed ones; nothing else is touched.
class CSkinEdit {
public:
    /// 0xBBGGRR.
    void SetColour(SkinKey key, std::uint32_t colour);

    /// A picture of the kinds IF (kept as the path given), BP, BL or BS (kept as its file name behind a backslash).
    /// Other keys are not written.
    void SetPicture(SkinKey key, std::u16string_view path);

    /// The weather icons: a folder, or one of the names of the program's own set.
    void SetIconSet(std::u16string_view chosen);

    /// The key is not changed after all.
    void Reset(SkinKey key) { m_values.erase(key); }

    bool IsEmpty() const { return m_values.empty(); }

    /// The line that each changed key becomes: key, "@", value, without a line end.
    std::map<SkinKey, std::u16string> Lines(bool defaultSkin) const;

private:
    std::map<SkinKey, std::u16string> m_values;
};

enum class SkinWriteStatus {
    kWritten,
    kNotRead,   ///< the skin file cannot be read, or is larger than any skin may be
    kBadValue,  ///< a value holds a character that would end or begin something in the file
    kTooLong,   ///< the text would be longer than readers read
    kNotSaved,  ///< the device refuses; the old file is as it was
};

struct SkinWriteResult {
    SkinWriteStatus status = SkinWriteStatus::kWritten;
    std::vector<SkinKey> linesMissing;  ///< changed keys that the file has no line for; they are not saved
};

/// The text of a skin file (bytes, as in the file) with the lines of `lines` replaced in their sections; everything
/// else stays as it is, byte for byte. New lines end in CR LF and are UTF-8. `found` gets the keys that had a line.
std::string RewriteSkin(std::string_view text, const std::map<SkinKey, std::u16string>& lines,
                        std::vector<SkinKey>& found);

/// Rewrites a skin file. When a changed key has no line in it, the file is damaged or an old one: it is kept beside as
/// ".bak" before it is replaced.
SkinWriteResult WriteSkin(IFileSystem& files, const std::filesystem::path& skinFile, const CSkinEdit& edit,
                          bool defaultSkin);

}  // namespace rlx

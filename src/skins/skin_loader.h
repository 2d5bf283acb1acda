#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "shell/texts.h"
#include "skins/skin.h"

namespace rlx {

/// The value of the setting `skin` that means the default skin.
inline constexpr std::u16string_view kDefaultSkinSetting = u"default";

/// The file of a setting `skin`: `applicationFolder`/default.skn for "default" and for an empty text, else the path
/// itself, from the root of the file system, "\" standing for "/" too.
std::filesystem::path SkinFileOfSetting(const std::filesystem::path& applicationFolder, std::u16string_view setting);

/// The setting `skin` for a skin file: "default" for `applicationFolder`/default.skn, else the full path. Nothing for a
/// path that the setting cannot name: one that is not UTF-8, or holds a backslash.
std::optional<std::u16string> SettingOfSkinFile(const std::filesystem::path& applicationFolder,
                                                const std::filesystem::path& file);

/// True when a setting means the default skin.
bool IsDefaultSkinSetting(std::u16string_view setting);

/// Opens the selected skin and falls back to the default one. Owns nothing. Used on the user-interface thread.
class CSkinLoader {
public:
    /// Writes the setting `skin`.
    using SettingWriter = std::function<void(std::u16string_view)>;

    CSkinLoader(IFileSystem& files, std::filesystem::path applicationFolder, const ITexts& texts, IMessageBoxes& boxes,
                SettingWriter writeSetting);

    /// The skin that the setting names. When it cannot be opened, a message says so, the default skin is taken and the
    /// setting becomes "default"; when that cannot be opened either, a message says so and the skin is an empty one,
    /// whose colours are the fallbacks.
    CSkin Load(std::u16string_view setting);

private:
    std::optional<CSkin> Open(const std::filesystem::path& file);
    void Say(TextId text);

    IFileSystem& m_files;
    std::filesystem::path m_applicationFolder;
    const ITexts& m_texts;
    IMessageBoxes& m_boxes;
    SettingWriter m_writeSetting;
};

}  // namespace rlx

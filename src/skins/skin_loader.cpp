#include "skins/skin_loader.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "shell/text_ids.h"
#include "skins/skin_file.h"
#include "skins/text_ids.h"

namespace rlx {
namespace {

constexpr const char* kDefaultSkinFile = "default.skn";

std::filesystem::path FullPath(const std::filesystem::path& path) {
    std::error_code error;
    const auto full = std::filesystem::absolute(path, error);
    return (error ? path : full).lexically_normal();
}

}  // namespace

bool IsDefaultSkinSetting(std::u16string_view setting) {
    return setting.empty() || setting == kDefaultSkinSetting;
}

std::filesystem::path SkinFileOfSetting(const std::filesystem::path& applicationFolder, std::u16string_view setting) {
    if (IsDefaultSkinSetting(setting)) return applicationFolder / kDefaultSkinFile;
    std::string path = ToUtf8(setting.substr(0, setting.find(u'\0')));
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::optional<std::u16string> SettingOfSkinFile(const std::filesystem::path& applicationFolder,
                                                const std::filesystem::path& file) {
    const auto full = FullPath(file);
    if (full == FullPath(applicationFolder / kDefaultSkinFile)) return std::u16string(kDefaultSkinSetting);
    const std::string& path = full.native();
    if (!IsUtf8(path) || path.find('\\') != std::string::npos) return std::nullopt;
    return FromUtf8(path);
}

CSkinLoader::CSkinLoader(IFileSystem& files, std::filesystem::path applicationFolder, const ITexts& texts,
                         IMessageBoxes& boxes, SettingWriter writeSetting)
    : m_files(files),
      m_applicationFolder(std::move(applicationFolder)),
      m_texts(texts),
      m_boxes(boxes),
      m_writeSetting(std::move(writeSetting)) {}

CSkin CSkinLoader::Load(std::u16string_view setting) {
    const bool isDefault = IsDefaultSkinSetting(setting);
    if (!isDefault) {
        if (auto skin = Open(SkinFileOfSetting(m_applicationFolder, setting))) return *std::move(skin);
        Say(kTextSkinNotFound);
    }
    auto skin = Open(SkinFileOfSetting(m_applicationFolder, kDefaultSkinSetting));
    if (!skin) Say(kTextDefaultSkinNotFound);
    if (!isDefault) m_writeSetting(kDefaultSkinSetting);
    return skin.value_or(CSkin());
}

std::optional<CSkin> CSkinLoader::Open(const std::filesystem::path& file) {
    auto text = ReadSkinText(m_files, file);
    if (!text) return std::nullopt;
    return CSkin(*std::move(text), file.parent_path());
}

void CSkinLoader::Say(TextId text) {
    m_boxes.Show({m_texts.Text(kTextError), m_texts.Text(text), BoxIcon::kExclamation, BoxButtons::kOk});
}

}  // namespace rlx

#include "app/skin_commands.h"

#include "base/text.h"
#include "cli/text_ids.h"
#include "map/text_ids.h"
#include "shell/fill_text.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "skins/skin_loader.h"
#include "skins/text_ids.h"
#include "skins/ui/skin_chooser.h"
#include "skins/ui/skin_editor.h"
#include "uikit/folder_chooser.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

/// The screen that shows a section's colours; 0 for the frame around all of them.
int TitleTextOf(SkinSection section) {
    switch (section) {
        case SkinSection::kClocks:
            return kTextScreenClocks;
        case SkinSection::kWeather:
            return kTextScreenWeather;
        case SkinSection::kMap:
            return kTextScreenMap;
        case SkinSection::kCurrency:
            return kTextScreenCurrencies;
        case SkinSection::kTools:
            return kTextScreenTools;
        default:
            return 0;
    }
}

}  // namespace

CSkinCommands::CSkinCommands(const SkinPorts& ports, std::filesystem::path applicationFolder, CRegistryStore& settings,
                             CLook& look, CMainWindow& window)
    : m_ports(ports),
      m_applicationFolder(std::move(applicationFolder)),
      m_settings(settings),
      m_look(look),
      m_window(window) {
    connect(&m_look, &CLook::PictureBroken, this, &CSkinCommands::NoteBroken);
}

std::u16string CSkinCommands::Setting() const {
    return m_settings.ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin);
}

void CSkinCommands::WriteSetting(std::u16string_view name, std::u16string_view text) {
    if (m_settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, name, text)) return;
    const auto& texts = m_ports.resources;
    m_ports.boxes.Show({texts.Text(kTextError), FillText(texts.Text(kTextSettingNotWritten), {keys::kRoamlytix, name}),
                        BoxIcon::kExclamation, BoxButtons::kOk});
}

void CSkinCommands::Load() {
    const auto write = [this](std::u16string_view setting) { WriteSetting(names::kSkin, setting); };
    CSkinLoader loader(m_ports.files, m_applicationFolder, m_ports.resources, m_ports.boxes, write);
    m_look.SetSkin(loader.Load(Setting()));
}

void CSkinCommands::Choose() {
    SkinActions actions;
    actions.choose = [this](const std::u16string& setting) {
        WriteSetting(names::kSkin, setting);
        Load();
    };
    actions.keepFolder = [this](const std::filesystem::path& folder) {
        if (IsUtf8(folder.native())) WriteSetting(names::kSkinsFolder, FromUtf8(folder.native()));
    };
    actions.browse = [this](QWidget* parent, const std::filesystem::path& from) -> std::filesystem::path {
        const QString title = ToQString(m_ports.resources.Text(kTextSkinsFolderTitle));
        return ChooseFolder(m_ports.files, m_ports.resources, m_ports.boxes, title, from, parent).value_or("");
    };
    const auto other = m_settings.ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkinsFolder);
    CSkinChooser chooser(m_ports, {m_applicationFolder, ToUtf8(other), Setting()}, std::move(actions), &m_window);
    chooser.exec();
}

void CSkinCommands::Edit() {
    const std::u16string setting = Setting();
    const auto file = SkinFileOfSetting(m_applicationFolder, setting);
    auto draft = CSkinDraft::Open(m_ports.files, file, IsDefaultSkinSetting(setting));
    if (!draft) {
        const auto& texts = m_ports.resources;
        m_ports.boxes.Show({texts.Text(kTextError), FillText(texts.Text(kTextFileNotRead), {FromUtf8(file.string())}),
                            BoxIcon::kExclamation, BoxButtons::kOk});
        return;
    }
    SkinStage stage;
    stage.show = [this](const CSkin& skin) { m_look.SetSkin(skin); };
    stage.pictureOf = [this](SkinSection section) { return PictureOf(section); };
    CSkinEditor editor(m_ports, *std::move(draft), std::move(stage), &m_window);
    editor.exec();
}

/// A screen that is not the one shown takes its size first.
QPixmap CSkinCommands::PictureOf(SkinSection section) {
    const int title = TitleTextOf(section);
    for (int i = 0; i < m_window.Count(); ++i) {
        if (title == 0 || m_window.Entry(i).titleText != title) continue;
        CScreen& screen = m_window.Screen(i);
        if (m_window.Current() != nullptr) screen.resize(m_window.Current()->size());
        return screen.grab();
    }
    return m_window.grab();
}

/// Comes while something is painted, so the box waits until that is done.
void CSkinCommands::NoteBroken(const QString& file) {
    if (m_told.contains(file)) return;
    m_told << file;
    m_toTell << file;
    QMetaObject::invokeMethod(this, &CSkinCommands::TellBroken, Qt::QueuedConnection);
}

/// One box at a time.
void CSkinCommands::TellBroken() {
    if (m_telling) return;
    m_telling = true;
    const auto& texts = m_ports.resources;
    while (!m_toTell.isEmpty()) {
        const std::u16string file = FromQString(m_toTell.takeFirst());
        m_ports.boxes.Show({texts.Text(kTextError), FillText(texts.Text(kTextImageBroken), {file}),
                            BoxIcon::kExclamation, BoxButtons::kOk});
    }
    m_telling = false;
}

}  // namespace rlx

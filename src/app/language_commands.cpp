#include "app/language_commands.h"

#include "cli/text_ids.h"
#include "shell/boxes.h"
#include "shell/fill_text.h"
#include "shell/language_start.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "shell/ui/language_dialog.h"
#include "uikit/folder_chooser.h"
#include "uikit/qt_text.h"

namespace rlx {

CLanguageCommands::CLanguageCommands(const LanguagePorts& ports, CRegistryStore& settings, bool mayAsk)
    : m_ports(ports), m_settings(settings), m_mayAsk(mayAsk), m_folder(ModuleFolder(ports.folder)) {}

bool CLanguageCommands::Start(CResources& resources) {
    auto start = StartLanguage(m_ports.files, m_ports.folder, m_settings);
    if (start.state == LanguageState::kAskFirst && m_mayAsk) {
        const CLanguageList list = List();
        Ask(nullptr, list, LanguageOfLocale(list.Languages(), QLocale::system()));
        start = StartLanguage(m_ports.files, m_ports.folder, m_settings);
    }
    if (start.state == LanguageState::kFailed && m_mayAsk) {
        m_ports.boxes.Show(ErrorBox(m_ports.resources, m_ports.resources.Text(kTextLanguageNotLoaded)));
        Choose(nullptr);
        return false;
    }
    if (start.state == LanguageState::kModule) m_module = start.module;
    resources = std::move(start.resources);
    return true;
}

void CLanguageCommands::Choose(QWidget* parent) {
    Ask(parent, List(), LanguageSetting(m_settings).value_or(0));
}

void CLanguageCommands::Ask(QWidget* parent, const CLanguageList& list, std::uint32_t current) {
    const auto keep = [this](std::uint32_t index) { return Keep(index); };
    CLanguageDialog dialog(m_ports.resources, list.Languages(), current, keep, parent);
    dialog.exec();
}

bool CLanguageCommands::Keep(std::uint32_t index) {
    const auto& texts = m_ports.resources;
    const bool kept = WriteLanguageSetting(m_settings, index);
    m_ports.boxes.Show(
        kept ? NoteBox(texts, texts.Text(kTextRestartForLanguage))
             : ErrorBox(texts, FillText(texts.Text(kTextSettingNotWritten), {keys::kRoamlytix, names::kLanguage})));
    return kept;
}

/// A list that cannot be read offers what a missing one does; the message says why there is no more.
CLanguageList CLanguageCommands::List() {
    if (auto list = ReadLanguageList(m_ports.files, m_ports.folder, m_ports.resources)) return *std::move(list);
    const auto file = FromQString(QString::fromStdString(LanguageListFile(m_ports.folder).string()));
    m_ports.boxes.Show(ErrorBox(m_ports.resources, FillText(m_ports.resources.Text(kTextFileNotRead), {file})));
    return BuiltInLanguageList(m_ports.resources);
}

void CLanguageCommands::Install(QWidget* parent) {
    const auto browse = [this](QWidget* page, const std::filesystem::path& from) -> std::filesystem::path {
        const auto title = ToQString(m_ports.resources.Text(kTextChooseModuleFolder));
        const auto chosen =
            ChooseFolder(m_ports.files, m_ports.resources, m_ports.boxes, title, from, page).value_or("");
        // The module folder goes by its own name, by whatever way it was reached.
        std::error_code error;
        const auto modules = ModuleFolder(m_ports.folder);
        return std::filesystem::equivalent(chosen, modules, error) ? modules : chosen;
    };
    CInstallLanguages page(m_ports, m_folder, m_module, browse, parent);
    page.exec();
    m_folder = page.Folder();
}

}  // namespace rlx

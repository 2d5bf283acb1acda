#include "shell/ui/install_languages.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "base/text.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CInstallLanguages::CInstallLanguages(const LanguagePorts& ports, std::filesystem::path shown, std::u16string inUse,
                                     Browse browse, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogInstallLanguages).value_or(DialogTemplate{}), parent),
      m_ports(ports),
      m_shown(std::move(shown)),
      m_inUse(std::move(inUse)),
      m_browse(std::move(browse)),
      m_list(Control<QListWidget>(kControlModuleList)),
      m_install(Control<QPushButton>(kControlInstall)) {
    setObjectName("installLanguages");
    resize(360, 400);
    if (m_list == nullptr || m_install == nullptr) return;
    m_list->setWordWrap(true);
    connect(m_list, &QListWidget::currentRowChanged, this, &CInstallLanguages::FollowSelection);
    connect(Control<QPushButton>(kControlInstall), &QPushButton::clicked, this, &CInstallLanguages::Install);
    if (auto* button = Control<QPushButton>(kControlBrowse))
        connect(button, &QPushButton::clicked, this, &CInstallLanguages::ChooseFolder);
    Fill();
}

void CInstallLanguages::Fill() {
    m_list->clear();
    if (auto* folder = Control<QLineEdit>(kControlModuleFolder)) {
        folder->setText(QString::fromStdString(m_shown.string()));
        folder->setToolTip(folder->text());
    }
    const auto languages = ReadLanguageList(m_ports.files, m_ports.folder, m_ports.resources);
    for (const ModuleFile& file : ListModules(m_ports.files, m_shown, languages.value_or(CLanguageList({}))))
        AddRow(file);
    if (m_list->count() == 0) {
        auto* note = new QListWidgetItem(ToQString(m_ports.resources.Text(kTextNoModulesInFolder)), m_list);
        note->setFlags(Qt::NoItemFlags);
    }
    FollowSelection();
}

void CInstallLanguages::AddRow(const ModuleFile& file) {
    const std::u16string mark = file.installed ? m_ports.resources.Text(kTextInstalledMark) : std::u16string();
    auto* item = new QListWidgetItem(ToQString(file.name + mark), m_list);
    item->setData(Qt::UserRole, ToQString(file.name));
    item->setData(Qt::UserRole + 1, file.installed);
}

void CInstallLanguages::FollowSelection() {
    const auto* item = m_list->currentItem();
    const bool module = item != nullptr && !item->data(Qt::UserRole).toString().isEmpty();
    m_install->setEnabled(module && !item->data(Qt::UserRole + 1).toBool());
}

void CInstallLanguages::ChooseFolder() {
    const auto folder = m_browse(this, m_shown);
    if (folder.empty()) return;
    m_shown = folder;
    Fill();
    m_list->setFocus();
}

void CInstallLanguages::Install() {
    const auto* item = m_list->currentItem();
    if (item == nullptr) return;
    const int row = m_list->currentRow();
    const auto* remove = Control<QCheckBox>(kControlRemoveAfterInstall);
    const InstallRequest request{m_shown, FromQString(item->data(Qt::UserRole).toString()),
                                 remove != nullptr && remove->isChecked(), m_inUse};
    const auto outcome = InstallLanguage(m_ports.files, m_ports.folder, m_ports.resources, request);
    const auto message = InstallMessage(outcome, request, m_ports.resources);
    Fill();
    m_list->setCurrentRow(std::min(row, m_list->count() - 1));
    if (message.empty()) return;
    const bool done = outcome == InstallOutcome::kInstalled;
    m_ports.boxes.Show(done ? NoteBox(m_ports.resources, message) : ErrorBox(m_ports.resources, message));
}

}  // namespace rlx

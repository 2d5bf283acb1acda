#pragma once

#include <QListWidget>
#include <filesystem>
#include <functional>

#include "platform/message_boxes.h"
#include "shell/language_install.h"
#include "shell/resources.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// What the page of new languages works with. None is owned.
struct LanguagePorts {
    IFileSystem& files;
    const CApplicationFolder& folder;
    const CResources& resources;
    IMessageBoxes& boxes;
};

/// The page on which language modules of a folder are installed. User-interface thread.
class CInstallLanguages : public CTemplateDialog {
    Q_OBJECT

public:
    /// Lets a person pick a folder; empty: called off.
    using Browse = std::function<std::filesystem::path(QWidget* parent, const std::filesystem::path& from)>;

    /// `shown` is the folder that is listed at first, `inUse` the module that this run has loaded (empty: none).
    CInstallLanguages(const LanguagePorts& ports, std::filesystem::path shown, std::u16string inUse, Browse browse,
                      QWidget* parent = nullptr);

    /// The folder that is listed.
    const std::filesystem::path& Folder() const { return m_shown; }

private:
    void Fill();
    void AddRow(const ModuleFile& file);
    void FollowSelection();
    void ChooseFolder();
    void Install();

    LanguagePorts m_ports;
    std::filesystem::path m_shown;
    std::u16string m_inUse;
    Browse m_browse;
    QListWidget* m_list;
    QWidget* m_install;
};

}  // namespace rlx

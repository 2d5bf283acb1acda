#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <filesystem>
#include <optional>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "shell/resources.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The dialog in which a folder is chosen, small enough for a hand: a list of the folders in the folder shown, the way
/// up first, and a field for its path. A tap or Enter opens a folder, Backspace goes up, OK takes the folder shown.
/// User-interface thread; references must outlive it.
class CFolderChooser : public CTemplateDialog {
    Q_OBJECT

public:
    /// Begins in `from`, or in the nearest folder above it that is there.
    CFolderChooser(IFileSystem& files, const CResources& resources, IMessageBoxes& boxes, const QString& title,
                   const std::filesystem::path& from, QWidget* parent = nullptr);

    /// The folder shown; absolute.
    const std::filesystem::path& Folder() const { return m_folder; }

    /// Opens what was typed into the field; when there is no such folder a message says so and the dialog stays.
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpList();
    void Open(const std::filesystem::path& folder);
    void GoUp();
    bool OpenTyped();
    void OpenRow(const QListWidgetItem* item);
    void AddRow(const QString& name);

    IFileSystem& m_files;
    const CResources& m_resources;
    IMessageBoxes& m_boxes;
    std::filesystem::path m_folder;
    QLineEdit* m_path;
    QListWidget* m_list;
};

/// Asks for a folder; nothing when the person gives up.
std::optional<std::filesystem::path> ChooseFolder(IFileSystem& files, const CResources& resources, IMessageBoxes& boxes,
                                                  const QString& title, const std::filesystem::path& from,
                                                  QWidget* parent);

}  // namespace rlx

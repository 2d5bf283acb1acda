#include "uikit/folder_chooser.h"

#include <QKeyEvent>
#include <QStyle>
#include <algorithm>

#include "base/text.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kRowHeight = 28;  // a finger's
constexpr const char* kUp = "..";

/// Without a "/" at the end, which has no name to come back to.
std::filesystem::path Plain(const std::filesystem::path& folder) {
    const std::filesystem::path plain = std::filesystem::path("/" / folder).lexically_normal();
    return plain.has_filename() || plain == plain.root_path() ? plain : plain.parent_path();
}

}  // namespace

CFolderChooser::CFolderChooser(IFileSystem& files, const CResources& resources, IMessageBoxes& boxes,
                               const QString& title, const std::filesystem::path& from, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogChooseFolder).value_or(DialogTemplate{}), parent),
      m_files(files),
      m_resources(resources),
      m_boxes(boxes),
      m_path(Control<QLineEdit>(kControlFolderPath)),
      m_list(Control<QListWidget>(kControlFolderList)) {
    setObjectName("folderChooser");
    setWindowTitle(title);
    resize(380, 420);
    if (m_path == nullptr || m_list == nullptr) return;
    SetUpList();
    m_path->installEventFilter(this);
    std::filesystem::path folder = Plain(from);
    while (!m_files.IsFolder(folder) && folder != folder.root_path())
        folder = folder.parent_path();
    Open(folder);
    m_list->setFocus();
}

void CFolderChooser::SetUpList() {
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->installEventFilter(this);
    connect(m_list, &QListWidget::itemClicked, this, &CFolderChooser::OpenRow);
}

/// Enter opens what one stands on, where it would press OK elsewhere.
bool CFolderChooser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return CTemplateDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_path && enter) {
        OpenTyped();
        return true;
    }
    if (watched == m_list && enter && m_list->currentItem() != nullptr) {
        OpenRow(m_list->currentItem());
        return true;
    }
    if (watched == m_list && key == Qt::Key_Backspace) {
        GoUp();
        return true;
    }
    return CTemplateDialog::eventFilter(watched, event);
}

void CFolderChooser::Open(const std::filesystem::path& folder) {
    const std::filesystem::path before = std::exchange(m_folder, folder);
    m_path->setText(QString::fromStdString(folder.string()));
    m_list->clear();
    if (folder != folder.root_path()) AddRow(kUp);
    for (const std::string& name : m_files.ListFolders(folder)) {
        // Hidden folders are there for those who type their name.
        if (!name.starts_with('.') && IsUtf8(name)) AddRow(QString::fromStdString(name));
    }
    // Gone up, one stands on the folder that one came from.
    const auto found = m_list->findItems(QString::fromStdString(before.filename().string()), Qt::MatchExactly);
    const bool up = before.parent_path() == folder && !found.isEmpty();
    m_list->setCurrentRow(up ? m_list->row(found.first()) : 0);
}

void CFolderChooser::AddRow(const QString& name) {
    const bool up = name == kUp;
    const QIcon icon = style()->standardIcon(up ? QStyle::SP_FileDialogToParent : QStyle::SP_DirIcon);
    auto* item = new QListWidgetItem(icon, name, m_list);
    item->setSizeHint({0, kRowHeight});
}

void CFolderChooser::OpenRow(const QListWidgetItem* item) {
    if (item->text() == kUp) {
        GoUp();
    } else {
        Open(m_folder / item->text().toStdString());
    }
}

void CFolderChooser::GoUp() {
    if (m_folder != m_folder.root_path()) Open(m_folder.parent_path());
}

bool CFolderChooser::OpenTyped() {
    const std::filesystem::path typed = m_folder / m_path->text().toStdString();
    if (m_files.IsFolder(typed)) {
        if (Plain(typed) != m_folder) Open(Plain(typed));
        return true;
    }
    m_boxes.Show({m_resources.Text(kTextError),
                  FillText(m_resources.Text(kTextNoSuchFolder), {FromQString(m_path->text())}), BoxIcon::kExclamation,
                  BoxButtons::kOk});
    return false;
}

void CFolderChooser::accept() {
    if (m_path != nullptr && OpenTyped()) CTemplateDialog::accept();
}

std::optional<std::filesystem::path> ChooseFolder(IFileSystem& files, const CResources& resources, IMessageBoxes& boxes,
                                                  const QString& title, const std::filesystem::path& from,
                                                  QWidget* parent) {
    CFolderChooser chooser(files, resources, boxes, title, from, parent);
    if (chooser.exec() != QDialog::Accepted) return std::nullopt;
    return chooser.Folder();
}

}  // namespace rlx

#include "skins/ui/skin_file_picker.h"

#include <QPainter>

#include "shell/control_ids.h"
#include "skins/ui/skin_preview.h"
#include "uikit/bitmap_image.h"

namespace rlx {

namespace {

constexpr QSize kView(72, 54);

/// Transparent around the picture, so that names line up; empty when it cannot be read.
QPixmap ViewOfFile(const SkinPorts& ports, const std::filesystem::path& file) {
    QPixmap view(kView * 2);
    view.fill(Qt::transparent);
    const auto bytes = ports.files.ReadFile(file, IImageCodec::kMaxFileSize);
    QImage image;
    if (bytes) {
        // Icons are transparent, which our own bitmaps are not.
        if (file.extension() == ".png") image.loadFromData(QByteArray::fromStdString(*bytes), "PNG");
        if (image.isNull()) {
            if (auto bitmap = ports.codec.Load(*bytes)) image = ImageOf(*std::move(bitmap));
        }
    }
    if (image.isNull()) return view;
    const QImage fitted = image.scaled(view.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter(&view).drawImage((view.width() - fitted.width()) / 2, (view.height() - fitted.height()) / 2, fitted);
    return view;
}

}  // namespace

CSkinFilePicker::CSkinFilePicker(const SkinPorts& ports, const QString& title,
                                 const std::vector<SkinFileChoice>& choices, int current, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogPickSkinFile).value_or(DialogTemplate{}), parent),
      m_list(Control<QListWidget>(kControlSkinFileList)) {
    setObjectName("skinFilePicker");
    setWindowTitle(title);
    resize(360, 400);
    if (m_list == nullptr) return;
    m_list->setIconSize(kView);
    m_list->setWordWrap(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (const SkinFileChoice& choice : choices) {
        auto* item = new QListWidgetItem(choice.name, m_list);
        if (!choice.picture.empty()) item->setIcon(PlainIcon(ViewOfFile(ports, choice.picture)));
    }
    m_list->setCurrentRow(current);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

int CSkinFilePicker::Picked() const {
    return m_list == nullptr ? -1 : m_list->currentRow();
}

}  // namespace rlx

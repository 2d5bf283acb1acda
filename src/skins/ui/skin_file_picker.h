#pragma once

#include <QListWidget>
#include <QString>
#include <filesystem>
#include <vector>

#include "skins/ui/skin_ports.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// One file or folder of a skin that can be picked.
struct SkinFileChoice {
    QString name;
    std::filesystem::path picture;  ///< shown beside the name; may be empty
};

/// The dialog in which a picture or a set of icons of a skin is picked, with a small view of each. Only what it is
/// given can be picked, so nothing from outside of the skin's folders gets in. User-interface thread.
class CSkinFilePicker : public CTemplateDialog {
    Q_OBJECT

public:
    CSkinFilePicker(const SkinPorts& ports, const QString& title, const std::vector<SkinFileChoice>& choices,
                    int current, QWidget* parent = nullptr);

    /// Index in the choices; -1 when none is selected.
    int Picked() const;

private:
    QListWidget* m_list;
};

}  // namespace rlx

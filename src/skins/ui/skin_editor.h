#pragma once

#include <QBoxLayout>
#include <QTimer>
#include <QTreeView>
#include <functional>

#include "skins/skin_draft.h"
#include "skins/ui/picture_panel.h"
#include "skins/ui/skin_key_model.h"
#include "skins/ui/skin_ports.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// How the rest of the program shows a skin while it is edited.
struct SkinStage {
    std::function<void(const CSkin&)> show;         ///< puts it in force on every screen
    std::function<QPixmap(SkinSection)> pictureOf;  ///< the screen of a section as it looks now
};

/// The dialog in which a skin is edited: every colour and picture by name. What is changed shows at once on the screens
/// behind it and in the panel; Save writes the changed lines back, Cancel puts all back. User-interface thread.
class CSkinEditor : public CTemplateDialog {
    Q_OBJECT

public:
    CSkinEditor(const SkinPorts& ports, CSkinDraft draft, SkinStage stage, QWidget* parent = nullptr);

    /// Saves; when that is refused a message says why and the dialog stays.
    void accept() override;

    /// Puts the old look back.
    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void SetUpKeys();
    void ConnectButtons();
    void AddPanel();
    std::optional<SkinKey> Selected() const;
    void Change();
    void Reset();
    void ShowDraft();
    void UpdateButtons();
    void UpdatePanel();
    void Say(int text, const std::u16string& filling = {});

    SkinPorts m_ports;
    CSkinDraft m_draft;
    SkinStage m_stage;
    CSkinKeyModel m_model;
    QTreeView* m_keys;
    CPicturePanel* m_panel;
    QBoxLayout* m_row = nullptr;  ///< keys and panel
    QTimer m_soon;                ///< many changes while one drags become one
};

}  // namespace rlx

#pragma once

#include <QLabel>
#include <QLineEdit>
#include <functional>

#include "shell/resources.h"
#include "skins/ui/colour_field.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The dialog in which a colour is picked, small enough for a screen of 240x320: a field to point at, the number to
/// type, the old and the new colour side by side. User-interface thread.
class CColourPicker : public CTemplateDialog {
    Q_OBJECT

public:
    /// `follow` is called with every colour on the way, so that the screens can show it.
    CColourPicker(const CResources& resources, const QString& title, const QColor& colour,
                  std::function<void(const QColor&)> follow, QWidget* parent = nullptr);

    QColor Colour() const { return m_colour; }

private:
    void AddField(const CResources& resources);
    void Show(const QColor& colour);
    void TakeText(const QString& text);

    const QColor m_old;
    QColor m_colour;
    std::function<void(const QColor&)> m_follow;
    CColourField* m_field;
    QLabel* m_swatch;
    QLineEdit* m_text;
};

}  // namespace rlx

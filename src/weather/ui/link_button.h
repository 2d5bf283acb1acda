#pragma once

#include <QAbstractButton>
#include <vector>

#include "uikit/look.h"

namespace rlx {

/// A button on the screen's picture: an icon of the program's family, a text, or both, in one of the skin's colours; a
/// checked one is underlined. The look must outlive it.
class CLinkButton : public QAbstractButton {
    Q_OBJECT

public:
    CLinkButton(const CLook& look, SkinKey colour, QWidget* parent);

    /// Name of the icon; empty for none. A mirrored one points the other way.
    void SetIcon(const QString& name, bool mirrored = false);

    /// Writes the texts of a row all in the size in which the longest of them fits. The buttons must outlive each
    /// other.
    static void WriteAlike(const std::vector<CLinkButton*>& row);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF TextRoom() const;
    QFont TextFont() const;
    double TextSize() const;

    const CLook& m_look;
    SkinKey m_colour;
    QString m_icon;
    bool m_mirrored = false;
    std::vector<CLinkButton*> m_row;
};

}  // namespace rlx

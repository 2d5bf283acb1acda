#pragma once

#include <QButtonGroup>
#include <QRect>
#include <QWidget>
#include <vector>

#include "tools/ui/tool_button.h"

namespace rlx {

/// Where `count` cards lie in `area`: a grid of the number of columns that makes the cards largest, centred.
std::vector<QRect> LayOutTools(const QRect& area, int count);

/// The tools to choose from, as cards. The arrow keys move between them.
class CToolList : public QWidget {
    Q_OBJECT

public:
    CToolList(const CLook& look, QWidget* parent);

    void Add(const QString& iconName, const QString& title);
    void FocusTool(int index);

signals:
    void Chosen(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();

    const CLook& m_look;
    QButtonGroup m_group;
    std::vector<CToolButton*> m_buttons;
};

}  // namespace rlx

#include "tools/ui/tool_list.h"

#include <algorithm>

namespace rlx {

namespace {

constexpr int kGap = 6;
constexpr int kLargestWidth = 210;
constexpr int kLargestHeight = 170;

QSize CellIn(const QSize& area, int count, int columns) {
    const int rows = (count + columns - 1) / columns;
    return {(area.width() - kGap) / columns - kGap, (area.height() - kGap) / rows - kGap};
}

}  // namespace

std::vector<QRect> LayOutTools(const QRect& area, int count) {
    int columns = 1;
    QSize cell;
    for (int tried = 1; tried <= count; ++tried) {
        const QSize size = CellIn(area.size(), count, tried);
        if (tried > 1 && std::min(size.width(), size.height()) <= std::min(cell.width(), cell.height())) continue;
        cell = size;
        columns = tried;
    }
    cell = cell.boundedTo({kLargestWidth, kLargestHeight});
    const int rows = (count + columns - 1) / columns;
    const int left = area.left() + (area.width() - columns * (cell.width() + kGap) + kGap) / 2;
    const int top = area.top() + (area.height() - rows * (cell.height() + kGap) + kGap) / 2;
    std::vector<QRect> places;
    for (int i = 0; i < count; ++i) {
        const QPoint corner(left + i % columns * (cell.width() + kGap), top + i / columns * (cell.height() + kGap));
        places.emplace_back(corner, cell);
    }
    return places;
}

CToolList::CToolList(const CLook& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setObjectName("toolList");
    // A group, though not an exclusive one, gives the buttons the arrow keys.
    m_group.setExclusive(false);
    connect(&m_group, &QButtonGroup::idClicked, this, &CToolList::Chosen);
}

void CToolList::Add(const QString& iconName, const QString& title) {
    auto* button = new CToolButton(iconName, title, m_look, this);
    m_group.addButton(button, static_cast<int>(m_buttons.size()));
    m_buttons.push_back(button);
    Arrange();
}

void CToolList::FocusTool(int index) {
    if (QAbstractButton* button = m_group.button(index)) button->setFocus(Qt::OtherFocusReason);
}

void CToolList::Arrange() {
    const std::vector<QRect> places = LayOutTools(rect(), static_cast<int>(m_buttons.size()));
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setGeometry(places[i]);
}

void CToolList::resizeEvent(QResizeEvent* /*event*/) {
    Arrange();
}

}  // namespace rlx

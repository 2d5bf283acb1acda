#include "tools/packing/ui/packing_selector.h"

#include <QSignalBlocker>

namespace rlx {

namespace {

constexpr int kHeight = 28;

}  // namespace

CPackingSelector::CPackingSelector(QWidget* parent) : QComboBox(parent) {
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    setMinimumHeight(kHeight);
}

void CPackingSelector::Show(const QStringList& names, std::size_t current) {
    const QSignalBlocker blocker(this);
    clear();
    addItems(names);
    setCurrentIndex(static_cast<int>(current));
    setToolTip(currentText());
}

}  // namespace rlx

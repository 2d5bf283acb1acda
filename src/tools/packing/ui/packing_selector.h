#pragma once

#include <QComboBox>
#include <QStringList>

namespace rlx {

/// A drop-down list of names that takes the width it gets, however long they are.
class CPackingSelector : public QComboBox {
    Q_OBJECT

public:
    explicit CPackingSelector(QWidget* parent);

    /// Signals nothing.
    void Show(const QStringList& names, std::size_t current);
};

}  // namespace rlx

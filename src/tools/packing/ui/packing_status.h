#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QWidget>

namespace rlx {

/// The line below the list: how much is packed, the filter in force, a hint. The hint moves to a line of its own where
/// there is no room.
class CPackingStatus : public QWidget {
    Q_OBJECT

public:
    CPackingStatus(const QString& hint, QWidget* parent);

    /// An empty `filter` shows no mark.
    void Set(const QString& packed, const QString& filter);

signals:
    /// The mark was tapped: the filter is no longer wanted.
    void FilterDismissed();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();

    QGridLayout* m_layout;
    QLabel* m_packed;
    QToolButton* m_filter;
    QLabel* m_hint;
};

}  // namespace rlx

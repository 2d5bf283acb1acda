#pragma once

#include <QListView>

namespace rlx {

/// The items to pack: whole texts, a check box in front, and words where there is nothing to show.
class CPackingListView : public QListView {
    Q_OBJECT

public:
    explicit CPackingListView(QWidget* parent);

    /// What stands in the place of items when there are none.
    void SetEmptyText(const QString& text);
    const QString& EmptyText() const { return m_emptyText; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_emptyText;
};

}  // namespace rlx

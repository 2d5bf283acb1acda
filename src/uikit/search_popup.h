#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace rlx {

/// The places of the entries that a text finds, the best first; all of them for an empty text.
using EntrySearch = std::function<std::vector<std::size_t>(const std::u16string& text)>;

/// A list that opens over the window, with a field to search it by typing. It is as wide as its longest entry where the
/// window is. Deletes itself when it is closed.
class CSearchPopup : public QFrame {
    Q_OBJECT

public:
    struct Words {
        QString searchHint;
        QString nothingFound;
    };

    /// `owner` is the widget that it opens below.
    CSearchPopup(QStringList entries, EntrySearch search, const Words& words, QWidget* owner);

    /// Opens with `typed` in the field and the entry `current` selected.
    void Open(int current, const QString& typed);

signals:
    void Chosen(int entry);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LayOut();
    void Search();
    void Accept(const QListWidgetItem* item);
    void Move(int by);
    void Place();

    const QStringList m_entries;
    const EntrySearch m_search;
    int m_current = -1;
    QLineEdit* m_field;
    QListWidget* m_list;
    QLabel* m_nothing;
};

}  // namespace rlx

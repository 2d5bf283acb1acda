#pragma once

#include <QAbstractButton>
#include <QPointer>

#include "uikit/search_popup.h"

namespace rlx {

/// A selector for long lists: shows the entry chosen, and opens a list that is searched by typing. Typing on the closed
/// selector opens it with what was typed; up and down choose the neighbours.
class CSearchCombo : public QAbstractButton {
    Q_OBJECT

public:
    explicit CSearchCombo(const CSearchPopup::Words& words, QWidget* parent = nullptr);

    /// Replaces the entries; the first is chosen. `search` is called while the list is open.
    void SetEntries(QStringList entries, EntrySearch search);

    /// Chooses without a signal; -1 for none.
    void SetCurrent(int entry);
    int Current() const { return m_current; }
    const QStringList& Entries() const { return m_entries; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user chose an entry, maybe the same again.
    void Chosen(int entry);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OpenList(const QString& typed = {});
    void Choose(int entry);

    const CSearchPopup::Words m_words;
    QStringList m_entries;
    EntrySearch m_search;
    int m_current = -1;
    QPointer<CSearchPopup> m_popup;
};

}  // namespace rlx

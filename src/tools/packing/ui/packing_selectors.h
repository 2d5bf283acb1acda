#pragma once

#include "shell/texts.h"
#include "tools/packing/packing_organizer.h"
#include "tools/packing/ui/packing_selector.h"

namespace rlx {

/// The two selectors above the items, side by side: the category and its list. User-interface thread; references must
/// outlive it.
class CPackingSelectors : public QWidget {
    Q_OBJECT

public:
    CPackingSelectors(CPackingOrganizer& organizer, const ITexts& texts, QWidget* parent);

    /// Follows the organizer.
    void Show();

signals:
    /// The person selected another category or list; the organizer knows it.
    void Selected();

private:
    CPackingOrganizer& m_organizer;
    const ITexts& m_texts;
    CPackingSelector* m_categories;
    CPackingSelector* m_lists;
};

}  // namespace rlx

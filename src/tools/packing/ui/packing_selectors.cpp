#include "tools/packing/ui/packing_selectors.h"

#include <QHBoxLayout>

#include "tools/packing/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

/// The first name of categories and of lists is content of the file, but shown in the language in force.
template <typename Named>
QStringList ShownNames(const std::vector<Named>& among, std::u16string_view first, const std::u16string& firstShown) {
    QStringList names;
    for (const Named& one : among)
        names << ToQString(names.isEmpty() && one.name == first ? firstShown : one.name);
    return names;
}

}  // namespace

CPackingSelectors::CPackingSelectors(CPackingOrganizer& organizer, const ITexts& texts, QWidget* parent)
    : QWidget(parent),
      m_organizer(organizer),
      m_texts(texts),
      m_categories(new CPackingSelector(this)),
      m_lists(new CPackingSelector(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_categories, 1);
    row->addWidget(m_lists, 1);
    m_categories->setObjectName("categories");
    m_lists->setObjectName("lists");
    connect(m_categories, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_organizer.SelectCategory(static_cast<std::size_t>(index));
        emit Selected();
    });
    connect(m_lists, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_organizer.SelectList(static_cast<std::size_t>(index));
        emit Selected();
    });
}

void CPackingSelectors::Show() {
    const std::vector<PackingCategory>& categories = m_organizer.Lists().Categories();
    const ListPlace current = m_organizer.Current();
    m_categories->Show(ShownNames(categories, kAllCategoryName, m_texts.Text(kTextAllCategory)), current.category);
    m_lists->Show(ShownNames(categories[current.category].lists, kAllItemsName, m_texts.Text(kTextAllItems)),
                  current.list);
}

}  // namespace rlx

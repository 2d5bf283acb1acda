#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "shell/resources.h"
#include "tools/packing/packing_organizer.h"

namespace rlx {

/// The dialogs in which a person adds to the packing lists or edits an item. Each returns true when the lists may have
/// changed. User-interface thread; references must outlive it.
class CPackingPrompts {
public:
    /// The dialogs stand over `parent`.
    CPackingPrompts(CPackingOrganizer& organizer, const CResources& resources, QWidget* parent)
        : m_organizer(organizer), m_resources(resources), m_parent(parent) {}

    bool AddCategory();
    bool AddList();

    /// What was added before the dialog was given up stays added.
    bool AddItems();

    bool EditItem(std::size_t item);

private:
    bool AskForText(int title, const QString& text, std::size_t maxLength,
                    const std::function<bool(const std::u16string&)>& take);

    CPackingOrganizer& m_organizer;
    const CResources& m_resources;
    QWidget* m_parent;
};

}  // namespace rlx

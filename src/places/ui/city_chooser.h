#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <optional>

#include "places/city_search.h"
#include "places/ui/city_list_model.h"
#include "shell/resources.h"
#include "uikit/template_dialog.h"

namespace rlx {

/// The dialog in which a city is chosen: a field to type in and a list that follows it at once. References must outlive
/// it. User-interface thread.
class CCityChooser : public CTemplateDialog {
    Q_OBJECT

public:
    /// `current` is selected at first.
    CCityChooser(CCityDatabase& cities, CCityTimes& times, const CResources& resources, ClockForm form,
                 const QString& title, CityIndex current, QWidget* parent = nullptr);

    /// The city selected; nothing when none is.
    std::optional<CityIndex> Selected() const;

protected:
    /// The same with another template that has the field and the list, under the template's own title.
    CCityChooser(int dialog, CCityDatabase& cities, CCityTimes& times, const CResources& resources, ClockForm form,
                 CityIndex current, QWidget* parent);

    /// A row was double-clicked.
    virtual void Activated() { accept(); }

    /// Other rows are shown.
    virtual void ListChanged();

    /// Reads the cities anew and selects one.
    void Reload(std::optional<CityIndex> current);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetUpList();
    void Search();
    void Select(int row);

    CCitySearch m_search;
    CCityListModel m_model;
    QLineEdit* m_field;
    QTreeView* m_list;
    QLabel* m_nothing;
    CityIndex m_current;
};

}  // namespace rlx

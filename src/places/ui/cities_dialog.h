#pragma once

#include <functional>

#include "places/city_editor.h"
#include "places/ui/city_chooser.h"
#include "platform/message_boxes.h"

namespace rlx {

/// What the dialogs that edit the list need beside the list itself. References must outlive them.
struct CityEditing {
    CCityEditor& editor;
    ITimeZones& zones;
    IMessageBoxes& boxes;
    Date today;  ///< of the device

    /// Called after each edit with the place before (empty: it came) and after (empty: it went).
    std::function<void(const std::u16string& before, const std::u16string& after)> changed;
};

/// The list of cities with a field to search in it, and buttons to add, change and delete one. Each edit is in force at
/// once. User-interface thread.
class CCitiesDialog : public CCityChooser {
    Q_OBJECT

public:
    CCitiesDialog(CCityDatabase& cities, CCityTimes& times, const CResources& resources, ClockForm form,
                  CityIndex current, CityEditing editing, QWidget* parent = nullptr);

protected:
    void Activated() override { Change(); }
    void ListChanged() override;

private:
    void Add();
    void Change();
    void Delete();
    void Report(const CityEdit& edit, const std::u16string& before, const std::u16string& after);
    std::optional<CityFields> SelectedCity();

    CCityDatabase& m_cities;
    const CResources& m_resources;
    CityEditing m_editing;
};

}  // namespace rlx

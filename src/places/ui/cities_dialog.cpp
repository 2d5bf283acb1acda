#include "places/ui/cities_dialog.h"

#include <QPushButton>

#include "places/city_list_messages.h"
#include "places/text_ids.h"
#include "places/ui/city_dialog.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"

namespace rlx {

CCitiesDialog::CCitiesDialog(CCityDatabase& cities, CCityTimes& times, const CResources& resources, ClockForm form,
                             CityIndex current, CityEditing editing, QWidget* parent)
    : CCityChooser(kDialogEditCities, cities, times, resources, form, current, parent),
      m_cities(cities),
      m_resources(resources),
      m_editing(std::move(editing)) {
    setObjectName("editCities");
    const auto connectButton = [this](int id, void (CCitiesDialog::*action)()) {
        if (auto* button = Control<QPushButton>(id)) connect(button, &QPushButton::clicked, this, action);
    };
    connectButton(kControlCityAdd, &CCitiesDialog::Add);
    connectButton(kControlCityChange, &CCitiesDialog::Change);
    connectButton(kControlCityDelete, &CCitiesDialog::Delete);
}

void CCitiesDialog::ListChanged() {
    CCityChooser::ListChanged();
    for (const int id : {kControlCityChange, kControlCityDelete}) {
        if (auto* button = Control<QPushButton>(id)) button->setEnabled(Selected().has_value());
    }
}

std::optional<CityFields> CCitiesDialog::SelectedCity() {
    const auto index = Selected();
    if (!index) return std::nullopt;
    const std::u16string place = m_cities.GetPlace(*index);
    auto city = m_editing.editor.Find(place);
    if (!city) {
        m_editing.boxes.Show(
            ErrorBox(m_resources, FillText(m_resources.Text(kTextCityGone), {m_cities.GetName(*index)})));
    }
    return city;
}

void CCitiesDialog::Add() {
    CCityDialog dialog(m_resources, m_editing, {}, m_resources.Text(kTextNewCity), this);
    dialog.SetSave([this](const CCityDraft& draft) { return m_editing.editor.Add(draft); });
    if (dialog.exec() == QDialog::Accepted) Report(dialog.Saved(), {}, dialog.Saved().place);
}

void CCitiesDialog::Change() {
    const auto city = SelectedCity();
    if (!city) return;
    CCityDialog dialog(m_resources, m_editing, CCityDraft(*city), m_resources.Text(kTextChangeCity), this);
    dialog.SetSave([this, &city](const CCityDraft& draft) { return m_editing.editor.Change(*city, draft); });
    if (dialog.exec() == QDialog::Accepted) Report(dialog.Saved(), city->Place(), dialog.Saved().place);
}

void CCitiesDialog::Delete() {
    const auto city = SelectedCity();
    if (!city) return;
    const std::u16string name = city->name + u", " + city->country;
    const auto question = QuestionBox(m_resources, FillText(m_resources.Text(kTextAskDeleteCity), {name}));
    if (m_editing.boxes.Show(question) != BoxAnswer::kYes) return;
    const CityEdit edit = m_editing.editor.Delete(*city);
    if (edit.fault) m_editing.boxes.Show(ErrorBox(m_resources, edit.fault->text));
    Report(edit, city->Place(), {});
}

/// Shows the list as it is now, the city of the edit selected.
void CCitiesDialog::Report(const CityEdit& edit, const std::u16string& before, const std::u16string& after) {
    ReportCityList(edit.list, m_editing.boxes, m_resources);
    if (!edit.Done()) return;
    if (m_editing.changed) m_editing.changed(before, after);
    Reload(after.empty() ? std::nullopt : m_cities.IndexOf(after));
}

}  // namespace rlx

#include "places/ui/city_dialog.h"

#include <QCompleter>
#include <QPushButton>

#include "places/city_list_messages.h"
#include "places/text_ids.h"
#include "places/ui/cities_dialog.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

struct FieldControl {
    CityField field;
    int control;
};

/// The zone is a selector with a field of its own.
constexpr std::array kFieldControls = {
    FieldControl{CityField::kName, kControlCityName},
    FieldControl{CityField::kCountry, kControlCityCountry},
    FieldControl{CityField::kLongitude, kControlCityLongitude},
    FieldControl{CityField::kLatitude, kControlCityLatitude},
    FieldControl{CityField::kZone, kControlCityZone},
    FieldControl{CityField::kGmt, kControlCityGmt},
    FieldControl{CityField::kDstHours, kControlCityDstHours},
    FieldControl{CityField::kStartDay, kControlCityStartDay},
    FieldControl{CityField::kStartHour, kControlCityStartHour},
    FieldControl{CityField::kEndDay, kControlCityEndDay},
    FieldControl{CityField::kEndHour, kControlCityEndHour},
};

}  // namespace

CCityDialog::CCityDialog(const CResources& resources, CityEditing& editing, const CCityDraft& draft,
                         const std::u16string& title, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogCity).value_or(DialogTemplate{}), parent),
      m_resources(resources),
      m_editing(editing) {
    setObjectName("city");
    setWindowTitle(ToQString(title));
    resize(420, 340);
    FillZones();
    Show(draft);
    for (const FieldControl& each : kFieldControls) {
        if (QLineEdit* field = Field(each.field))
            connect(field, &QLineEdit::textChanged, this, &CCityDialog::ShowDaylight);
    }
    if (auto* button = Control<QPushButton>(kControlCityFill))
        connect(button, &QPushButton::clicked, this, &CCityDialog::FillIn);
    ShowDaylight();
    if (QLineEdit* name = Field(CityField::kName)) name->setFocus();
}

QLineEdit* CCityDialog::Field(CityField field) const {
    for (const FieldControl& each : kFieldControls) {
        if (each.field != field) continue;
        if (auto* combo = Control<QComboBox>(each.control)) return combo->lineEdit();
        return Control<QLineEdit>(each.control);
    }
    return nullptr;
}

void CCityDialog::FillZones() {
    auto* combo = Control<QComboBox>(kControlCityZone);
    if (combo == nullptr) return;
    for (const std::string& name : m_editing.zones.Names())
        combo->addItem(QString::fromStdString(name));
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(8);
    // "paris" finds "Europe/Paris".
    combo->completer()->setFilterMode(Qt::MatchContains);
    combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
}

void CCityDialog::Show(const CCityDraft& draft) {
    for (const FieldControl& each : kFieldControls) {
        if (QLineEdit* field = Field(each.field)) {
            field->setText(ToQString(draft[each.field]));
            field->setCursorPosition(0);
        }
    }
}

CCityDraft CCityDialog::Typed() const {
    CCityDraft draft;
    for (const FieldControl& each : kFieldControls) {
        if (const QLineEdit* field = Field(each.field)) draft[each.field] = FromQString(field->text());
    }
    return draft;
}

void CCityDialog::FillIn() {
    CCityDraft draft = Typed();
    if (FillFromZone(draft, m_editing.zones, m_editing.today)) {
        Show(draft);
        return;
    }
    ShowFault({CityField::kZone, FillText(m_resources.Text(kTextZoneUnknown), {draft[CityField::kZone]})});
}

void CCityDialog::ShowDaylight() {
    const CCityDraft draft = Typed();
    if (auto* note = Control<QLabel>(kControlCityDaylight))
        note->setText(ToQString(DaylightText(draft, m_editing.today.year, m_resources)));
    const bool observes =
        FromQString(Field(CityField::kDstHours) ? Field(CityField::kDstHours)->text() : QString()).compare(u"0") != 0;
    for (const CityField field :
         {CityField::kStartDay, CityField::kStartHour, CityField::kEndDay, CityField::kEndHour}) {
        if (QLineEdit* edit = Field(field)) edit->setEnabled(observes);
    }
}

void CCityDialog::ShowFault(const CityFault& fault) {
    m_editing.boxes.Show(ErrorBox(m_resources, fault.text));
    if (QLineEdit* field = Field(fault.field)) {
        field->setFocus();
        field->selectAll();
    }
}

void CCityDialog::accept() {
    if (!m_save) return;
    m_saved = m_save(Typed());
    if (m_saved.fault) {
        ShowFault(*m_saved.fault);
    } else if (m_saved.Done()) {
        CTemplateDialog::accept();
    } else {
        ReportCityList(m_saved.list, m_editing.boxes, m_resources);
    }
}

}  // namespace rlx

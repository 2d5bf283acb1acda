#include "clocks/ui/reminder_editor.h"

#include <utility>

#include "clocks/reminder_text.h"
#include "clocks/text_ids.h"
#include "places/city_times.h"
#include "places/text_ids.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kNoteRefresh = 10000;  // milliseconds
constexpr int kNoteLines = 4;

QDate ToQDate(const Date& date) {
    return {date.year, date.month, date.day};
}

}  // namespace

CReminderEditor::CReminderEditor(const ReminderPorts& ports, Reminder reminder, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogReminder).value_or(DialogTemplate{}), parent),
      m_ports(ports),
      m_reminder(std::move(reminder)),
      m_form(ports.Form()),
      m_text(Control<QLineEdit>(kControlReminderText)),
      m_city(Control<QPushButton>(kControlReminderCity)),
      m_date(Control<QDateEdit>(kControlReminderDate)),
      m_time(Control<QTimeEdit>(kControlReminderTime)),
      m_note(Control<QLabel>(kControlReminderNote)) {
    setObjectName("reminderEditor");
    resize(360, 250);
    if (m_text == nullptr || m_city == nullptr || m_date == nullptr || m_time == nullptr || m_note == nullptr) return;
    Fill();
    ConnectFields();
    ShowNote();
}

void CReminderEditor::Fill() {
    m_text->setMaxLength(static_cast<int>(kLongestReminder));
    m_text->setText(ToQString(m_reminder.text));
    m_date->setDisplayFormat("dd/MM/yyyy");
    m_date->setDate(ToQDate(m_reminder.time.date));
    m_time->setLocale(QLocale::c());
    m_time->setDisplayFormat(m_form == ClockForm::kTwelve ? "h:mm AP" : "HH:mm");
    m_time->setTime({m_reminder.time.hour, m_reminder.time.minute});
    m_note->setMinimumHeight(kNoteLines * fontMetrics().lineSpacing());
    m_note->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ShowCity();
}

void CReminderEditor::ConnectFields() {
    connect(m_city, &QPushButton::clicked, this, &CReminderEditor::ChooseCity);
    connect(m_date, &QDateEdit::dateChanged, this, &CReminderEditor::ShowNote);
    connect(m_time, &QTimeEdit::timeChanged, this, &CReminderEditor::ShowNote);
    connect(&m_clockTimer, &QTimer::timeout, this, &CReminderEditor::ShowNote);
    m_clockTimer.start(kNoteRefresh);
}

void CReminderEditor::ShowCity() {
    const std::u16string name = m_reminder.place.empty() ? m_ports.Clock().CityOf({}).name : m_reminder.place;
    m_city->setText(ToQString(name.substr(0, name.find(u':'))).replace('&', "&&"));
}

void CReminderEditor::ChooseCity() {
    const CityIndex current = m_ports.Clock().CityOf(m_reminder.place).index;
    const auto city = m_ports.chooseCity(this, ToQString(m_ports.resources.Text(kTextCity)), current);
    if (!city) return;
    m_reminder.place = m_ports.cities.GetPlace(*city);
    ShowCity();
    ShowNote();
}

void CReminderEditor::ReadFields() {
    const QDate date = m_date->date();
    const QTime time = m_time->time();
    m_reminder.time = {{date.year(), date.month(), date.day()}, time.hour(), time.minute(), 0, 0};
    m_reminder.text = FromQString(m_text->text().simplified());
}

QString CReminderEditor::PastText(CReminderClock& clock) const {
    const DateTime shown = clock.CityTime(m_reminder.place, clock.Now());
    return ToQString(
        FillText(m_ports.resources.Text(kTextReminderPast),
                 {clock.CityOf(m_reminder.place).name, TimeAndDateText(shown, m_form, m_ports.resources)}));
}

void CReminderEditor::ShowNote() {
    ReadFields();
    CReminderClock clock = m_ports.Clock();
    const ReminderMoment moment = clock.MomentOf(m_reminder);
    const std::int64_t seconds = SecondNumber(moment.utc) - SecondNumber(clock.UtcNow());
    QStringList lines;
    if (seconds <= 0) {
        lines << PastText(clock);
    } else {
        lines << ToQString(FillText(
            m_ports.resources.Text(kTextReminderHere),
            {TimeAndDateText(moment.device, m_form, m_ports.resources), UntilText(seconds, m_ports.resources)}));
    }
    m_note->setText((lines + NotesOn(moment, clock)).join('\n'));
}

/// What a person might not expect of that time.
QStringList CReminderEditor::NotesOn(const ReminderMoment& moment, CReminderClock& clock) const {
    const auto& texts = m_ports.resources;
    const CityRecord city = clock.CityOf(m_reminder.place);
    QStringList notes;
    const auto note = [&](int text, std::initializer_list<std::u16string_view> values) {
        notes << ToQString(FillText(texts.Text(text), values));
    };
    if (!m_reminder.place.empty() && !clock.Find(m_reminder.place)) {
        note(kTextReminderCityGone, {m_reminder.place.substr(0, m_reminder.place.find(u':')), city.name});
    }
    if (moment.lies == TimeOnClock::kSkipped) {
        const DateTime shown = clock.CityTime(m_reminder.place, moment.device);
        note(kTextReminderSkipped, {city.name, TimeAndDateText(shown, m_form, texts)});
    }
    if (moment.lies == TimeOnClock::kTwice) note(kTextReminderTwice, {});
    const std::u16string other = OtherClock(moment, city.index);
    if (!other.empty()) note(kTextOtherClock, {other});
    return notes;
}

/// What the Clocks screen shows of the city when the reminder comes, if that is another time.
std::u16string CReminderEditor::OtherClock(const ReminderMoment& moment, CityIndex city) const {
    CRegistryStore settings(m_ports.registry);
    const ClockSettings clocks = LoadClockSettings(settings);
    if (clocks.syncZone == 0 && clocks.home == city) return {};
    CCityTimes times(m_ports.cities, m_ports.clock, m_ports.resources, clocks);
    const ClockReading reading = times.WorldClock(city, moment.device);
    const DateTime& time = m_reminder.time;
    if (moment.lies == TimeOnClock::kSkipped || (reading.hour == time.hour && reading.minute == time.minute)) return {};
    const ClockTextPieces text =
        ClockText(static_cast<int>(reading.hour % 24), reading.minute, std::nullopt, m_form, m_ports.resources);
    return text.time + text.half;
}

void CReminderEditor::accept() {
    ReadFields();
    CReminderClock clock = m_ports.Clock();
    if (SecondNumber(clock.MomentOf(m_reminder).utc) > SecondNumber(clock.UtcNow())) return CTemplateDialog::accept();
    m_ports.boxes.Show(ErrorBox(m_ports.resources, FromQString(PastText(clock))));
    m_time->setFocus();
}

}  // namespace rlx

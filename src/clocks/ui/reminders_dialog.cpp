#include "clocks/ui/reminders_dialog.h"

#include <QKeyEvent>

#include "clocks/reminder_text.h"
#include "clocks/text_ids.h"
#include "clocks/ui/reminder_editor.h"
#include "clocks/ui/reminder_row.h"
#include "shell/boxes.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kRefresh = 10000;         // milliseconds
constexpr std::int64_t kAhead = 3600;   // a new reminder is proposed that many seconds from now
constexpr std::int64_t kRounded = 300;  // at the next full five minutes

}  // namespace

CRemindersDialog::CRemindersDialog(const ReminderPorts& ports, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogReminders).value_or(DialogTemplate{}), parent),
      m_ports(ports),
      m_store(ports.registry),
      m_list(Control<QListWidget>(kControlReminderList)),
      m_edit(Control<QPushButton>(kControlReminderEdit)),
      m_clear(Control<QPushButton>(kControlReminderClear)) {
    setObjectName("reminders");
    resize(380, 260);
    if (m_list == nullptr || m_edit == nullptr || m_clear == nullptr) return;
    m_list->setItemDelegate(new CReminderRow(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->installEventFilter(this);
    for (std::size_t number = 0; number < kReminders; ++number)
        new QListWidgetItem(m_list);
    Fill();
    Connect();
    m_list->setCurrentRow(0);
}

void CRemindersDialog::Connect() {
    connect(m_list, &QListWidget::itemDoubleClicked, this, &CRemindersDialog::Edit);
    connect(m_list, &QListWidget::currentRowChanged, this, &CRemindersDialog::ShowButtons);
    connect(m_edit, &QPushButton::clicked, this, &CRemindersDialog::Edit);
    connect(m_clear, &QPushButton::clicked, this, &CRemindersDialog::Clear);
    connect(&m_clockTimer, &QTimer::timeout, this, &CRemindersDialog::Fill);
    m_clockTimer.start(kRefresh);
}

QString CRemindersDialog::RowText(std::size_t number) {
    const auto stored = m_store.Load(number);
    if (!stored) return ToQString(m_ports.resources.Text(kTextReminderNone));
    CReminderClock clock = m_ports.Clock();
    return ToQString(ReminderText(stored->reminder, clock, m_ports.Form(), m_ports.resources) + u"\n" +
                     ReminderStateText(*stored, clock, m_ports.resources));
}

void CRemindersDialog::Fill() {
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setText(RowText(static_cast<std::size_t>(row)));
    ShowButtons();
}

void CRemindersDialog::ShowButtons() {
    const int row = m_list->currentRow();
    m_edit->setEnabled(row >= 0);
    m_clear->setEnabled(row >= 0 && m_store.Load(static_cast<std::size_t>(row)).has_value());
}

void CRemindersDialog::SetFor(CityIndex city) {
    m_place = m_ports.cities.GetPlace(city);
    const auto row = FreeRow();
    if (!row) return;
    m_list->setCurrentRow(*row);
    QMetaObject::invokeMethod(this, &CRemindersDialog::Edit, Qt::QueuedConnection);
}

/// One without a reminder, else one whose reminder has come.
std::optional<int> CRemindersDialog::FreeRow() {
    std::optional<int> told;
    for (int row = 0; row < m_list->count(); ++row) {
        const auto stored = m_store.Load(static_cast<std::size_t>(row));
        if (!stored) return row;
        if (!told && stored->mark.state == ReminderMark::State::kTold) told = row;
    }
    return told;
}

Reminder CRemindersDialog::NewReminder() {
    CReminderClock clock = m_ports.Clock();
    const std::u16string place = m_place.empty() ? m_ports.cities.GetPlace(clock.CityOf({}).index) : m_place;
    const std::int64_t proposed = SecondNumber(clock.CityTime(place, clock.Now())) + kAhead + kRounded - 1;
    return {DateTimeOfSecondNumber(proposed - proposed % kRounded), place, {}};
}

void CRemindersDialog::Edit() {
    const int row = m_list->currentRow();
    if (row < 0) return;
    const auto number = static_cast<std::size_t>(row);
    const auto stored = m_store.Load(number);
    // A reminder that has come makes room for the next one.
    const bool isNew = !stored || stored->mark.state == ReminderMark::State::kTold;
    CReminderEditor editor(m_ports, isNew ? NewReminder() : stored->reminder, this);
    if (editor.exec() == QDialog::Accepted) Stored(m_store.Save(number, editor.Result()));
}

void CRemindersDialog::Clear() {
    if (m_list->currentRow() < 0) return;
    const auto number = static_cast<std::size_t>(m_list->currentRow());
    const auto stored = m_store.Load(number);
    if (!stored) return;
    CReminderClock clock = m_ports.Clock();
    const std::u16string text = ReminderText(stored->reminder, clock, m_ports.Form(), m_ports.resources);
    const std::u16string question = FillText(m_ports.resources.Text(kTextClearReminder), {text});
    if (m_ports.boxes.Show(QuestionBox(m_ports.resources, question)) == BoxAnswer::kYes) Stored(m_store.Clear(number));
}

void CRemindersDialog::Stored(bool stored) {
    Fill();
    if (stored) {
        emit Changed();
    } else {
        m_ports.boxes.Show(ErrorBox(m_ports.resources, m_ports.resources.Text(kTextReminderNotSaved)));
    }
}

/// The key that deletes elsewhere clears here.
bool CRemindersDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_list && event->type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        Clear();
        return true;
    }
    return CTemplateDialog::eventFilter(watched, event);
}

}  // namespace rlx

#include "clocks/ui/reminders_dialog.h"

#include "clocks/ui/reminder_editor.h"
#include "shell/control_ids.h"
#include "support/places_on_device.h"

namespace rlx {
namespace {

/// The device's clock stands at 22 November 2026, 21:10:05 in Amsterdam.
class RemindersDialogs : public ::testing::Test {
protected:
    Reminder NewYorkAt(int hour, int minute) const {
        return {{{2026, 11, 22}, hour, minute, 0, 0}, u"New York:United States", u"Call"};
    }

    test::PlacesOnDevice device;
    std::optional<CityIndex> choice;
    ReminderPorts ports{device.registry, device.cities,
                        device.clock,    device.resources,
                        device.boxes,    [this](QWidget*, const QString&, CityIndex) { return choice; }};
    CReminderStore store{device.registry};
};

TEST_F(RemindersDialogs, EditorTellsWhatATimeMeansAndRefusesThePast) {
    CReminderEditor editor(ports, NewYorkAt(15, 30));
    const auto* note = editor.Control<QLabel>(kControlReminderNote);
    auto* time = editor.Control<QTimeEdit>(kControlReminderTime);
    EXPECT_EQ(note->text(), "Here: 21:30, Sun 22/11/2026, in 19 min");
    time->setTime({15, 10});
    EXPECT_EQ(note->text(), "That time has passed: in New York it is 15:10, Sun 22/11/2026.");
    editor.accept();
    EXPECT_EQ(editor.result(), 0);
    ASSERT_EQ(device.boxes.shown.size(), 1U);
    EXPECT_EQ(device.boxes.shown[0].title, u"Error!");
    choice = 4;
    editor.Control<QPushButton>(kControlReminderCity)->click();
    EXPECT_EQ(editor.Control<QPushButton>(kControlReminderCity)->text(), "Tokyo");
    editor.Control<QDateEdit>(kControlReminderDate)->setDate({2026, 11, 24});
    EXPECT_EQ(note->text(), "Here: 07:10, Tue 24/11/2026, in 1 d 9 h");
    editor.accept();
    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_EQ(editor.Result(), (Reminder{{{2026, 11, 24}, 15, 10, 0, 0}, u"Tokyo:Japan", u"Call"}));
}

TEST_F(RemindersDialogs, EditorWarnsOfTimesAroundAChangeOfClocks) {
    device.clock.Set({{2026, 3, 1}, 12, 0, 0, 0});
    struct {
        std::u16string place;
        DateTime at;
        const char* warning;
    } const rows[] = {{u"Amsterdam:Netherlands",
                       {{2026, 3, 29}, 2, 30, 0, 0},
                       "The clocks go forward over this time; Amsterdam then shows 03:30, Sun 29/03/2026."},
                      {u"New York:United States",
                       {{2026, 10, 31}, 20, 30, 0, 0},
                       "The clocks go back and show this time twice; the first counts."},
                      {u"Sydney:Australia",
                       {{2026, 10, 4}, 9, 30, 0, 0},
                       "World Clocks shows 10:30 there: it changes its clocks by the day, reminders by the hour."},
                      {u"Atlantis:Nowhere",
                       {{2026, 6, 1}, 9, 30, 0, 0},
                       "Atlantis is not in the list of cities. The clock of Amsterdam counts."}};
    for (const auto& row : rows) {
        CReminderEditor editor(ports, {row.at, row.place, u""});
        const QStringList lines = editor.Control<QLabel>(kControlReminderNote)->text().split('\n');
        EXPECT_TRUE(lines.contains(row.warning)) << lines.join('|').toStdString();
    }
}

TEST_F(RemindersDialogs, RowsAreSetAndClearedByKeyboard) {
    store.Save(1, NewYorkAt(15, 30));
    CRemindersDialog dialog(ports);
    QSignalSpy changed(&dialog, &CRemindersDialog::Changed);
    dialog.show();
    auto* list = dialog.Control<QListWidget>(kControlReminderList);
    ASSERT_EQ(list->count(), 5);
    EXPECT_EQ(list->item(0)->text(), "No reminder");
    EXPECT_EQ(list->item(1)->text(), "Call\nNew York, 15:30, Sun 22/11/2026\nin 19 min");
    dialog.SetFor(4);  // the first free row, and its editor
    QTimer::singleShot(0, [] {
        auto* editor = qobject_cast<CReminderEditor*>(QApplication::activeModalWidget());
        ASSERT_NE(editor, nullptr);
        QTest::keyClicks(editor->Control<QLineEdit>(kControlReminderText), "  Wake  up ");
        QTest::keyClick(editor, Qt::Key_Return);
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(list->item(0)->text(), "Wake up\nTokyo, 06:15, Mon 23/11/2026\nin 1 h 4 min");
    EXPECT_EQ(changed.count(), 1);
    device.boxes.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_TRUE(store.Load(0));
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_FALSE(store.Load(0));
    EXPECT_EQ(changed.count(), 2);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(device.boxes.shown.size(), 2U) << "nothing there to clear";
}

}  // namespace
}  // namespace rlx

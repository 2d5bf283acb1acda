#include <set>

#include "shell/command_ids.h"
#include "shell/control_ids.h"
#include "shell/language_start.h"
#include "support/numbered_names.h"
#include "support/paths.h"
#include "support/whole_program.h"
#include "ui/language/visible_texts.h"

namespace rlx {
namespace {

namespace fs = std::filesystem;

/// Commands that ask the feed server, or end or change the window itself.
constexpr int kNotWalked[] = {kCommandUpdateRates, kCommandUpdateWeather, kCommandFetchNews, kCommandFullScreen,
                              kCommandExit};

/// Data that is shown as it stands, by the widgets that show it: names of cities, countries, places, currencies, units,
/// size systems, languages, modules, skins; paths of folders, numbers of colours, the city and day of a reminder, and
/// the credits.
constexpr const char* kShowData[] = {
    "clocksScreen", "mapScreen",    "mapClock",     "riseSetPanel", "place0",
    "place1",       "place2",       "place3",       "heading",      "currency0",
    "currency1",    "rate",         "fromUnit",     "toUnit",       "internationalCodes",
    "sizeTable",    "control_1021", "control_1000", "control_1012", "control_1200",
    "control_1010", "control_1201", "control_1390", "control_1391", "control_1220",
    "control_1051", "control_1080", "control_1323", "control_1324", "control_1327",
    "control_1371", "control_1372"};

bool IsData(const QWidget& widget, const QString& text) {
    static const QRegularExpression kPerUnit("^/\\S+$");  // behind "Value" in the list of units
    if (kPerUnit.match(text).hasMatch()) return true;
    // What shows the text of a list, of a box to choose in and of a date is a nameless part of it.
    const bool part = widget.objectName().isEmpty() || widget.objectName().startsWith("qt_");
    const QString name =
        part && widget.parentWidget() != nullptr ? widget.parentWidget()->objectName() : widget.objectName();
    return std::find(std::begin(kShowData), std::end(kShowData), name) != std::end(kShowData);
}

/// The real application in a language in which every text stands in brackets and is half as long again.
class PseudoWalk : public ::testing::Test {
protected:
    static void SetUpTestSuite() { test::CWholeProgram::SetStyle(); }

    PseudoWalk() : m_texts(&IsData) {
        for (const auto& entry : fs::directory_iterator(test::kDataDir)) {
            const std::string name = entry.path().filename().string();
            // Without the address of a feed server nothing is asked of one.
            if (name == "langs.dat" || name == "adrs.cfg" || name == "make") continue;
            // The program may write to its files, and through a link it would write to ours.
            if (entry.is_directory()) {
                fs::create_directory_symlink(entry.path(), m_program.home / name);
            } else {
                fs::copy_file(entry.path(), m_program.home / name);
            }
        }
        m_program.home.Put("langs.dat", "0,English,none@1,Pseudo,RoamlyPseudo.dll@>");
        fs::create_directories(m_program.home / "LangsRes");
        fs::copy(fs::path(test::kTestModuleDir) / "RoamlyPseudo.dll", m_program.home / "LangsRes");
        m_program.Start([](CRegistryStore& settings) { EXPECT_TRUE(WriteLanguageSetting(settings, 1)); });
        CPosixFileSystem files;
        m_resources = LoadLanguageModule(files, m_program.home / "LangsRes/RoamlyPseudo.dll");
    }

    CMainWindow& Window() { return m_program.Window(); }

    void Resize(const QSize& size) {
        Window().resize(size);
        Window().show();
        QApplication::processEvents();
    }

    void Check(QWidget& widget, const QString& where) {
        QApplication::processEvents();
        for (const QString& fault : m_texts.FaultsOf(widget)) {
            if (!m_told.insert(fault).second) continue;
            ADD_FAILURE() << where.toStdString() << ": " << fault.toStdString();
        }
    }

    /// Does what may open dialogs, one after another, and looks at each.
    void Press(const QString& where, const std::function<void()>& act, int depth) {
        QTimer timer;
        timer.setInterval(0);
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, [&] {
            Meet(where, depth);
            timer.start();
        });
        timer.start();
        act();
        timer.stop();
        QApplication::processEvents();
    }

    void Meet(const QString& where, int depth) {
        if (auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            CheckMenu(*popup, where);
            popup->close();
        }
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || std::find(m_depth.begin(), m_depth.end(), dialog) != m_depth.end()) return;
        const QString name = where + " > " + dialog->windowTitle();
        m_depth.push_back(dialog);
        Check(*dialog, name);
        if (m_met.insert(dialog->windowTitle()).second && depth < 3) PressAll(*dialog, name, depth + 1);
        m_depth.pop_back();
        dialog->done(QDialog::Rejected);
    }

    void PressAll(QWidget& root, const QString& where, int depth) {
        for (auto* button : root.findChildren<QAbstractButton*>()) {
            const bool ends = button->objectName() == QString("control_%1").arg(kControlOk) ||
                              button->objectName() == QString("control_%1").arg(kControlCancel);
            const bool leaves = button->objectName() == "backToTools";
            if (ends || leaves || !button->isVisible() || !button->isEnabled()) continue;
            const auto* tool = qobject_cast<QToolButton*>(button);
            const auto* push = qobject_cast<QPushButton*>(button);
            QMenu* menu = tool != nullptr ? tool->menu() : push != nullptr ? push->menu() : nullptr;
            if (menu != nullptr) {
                PressAll(*menu, where, depth);
            } else {
                Press(
                    where + " > " + button->text(), [button] { button->click(); }, depth);
            }
        }
    }

    void PressAll(QMenu& menu, const QString& where, int depth) {
        CheckMenu(menu, where);
        for (QAction* action : menu.actions()) {
            const bool skipped = std::any_of(std::begin(kNotWalked), std::end(kNotWalked), [&](int command) {
                return action->objectName() == QString("command_%1").arg(command);
            });
            if (action->menu() != nullptr) {
                PressAll(*action->menu(), where + " > " + action->text(), depth);
            } else if (!skipped && !action->isSeparator() && action->isEnabled()) {
                Press(
                    where + " > " + action->text(), [action] { action->trigger(); }, depth);
            }
        }
    }

    /// A menu of a widget that shows data lists data.
    void CheckMenu(const QMenu& menu, const QString& where) {
        const auto* owner = menu.parentWidget();
        if (owner != nullptr && IsData(*owner, {})) return;
        for (const QAction* action : menu.actions()) {
            const QString text = action->text().trimmed();
            const bool translated = text.startsWith('[') && text.endsWith(']');
            EXPECT_TRUE(translated || action->isSeparator()) << where.toStdString() << ": " << text.toStdString();
        }
    }

    test::CWholeProgram m_program;
    test::CVisibleTexts m_texts;
    std::set<QString> m_told;
    std::set<QString> m_met;
    std::vector<QDialog*> m_depth;
    std::optional<CResources> m_resources;
};

TEST_F(PseudoWalk, EveryScreenSpeaksTheLanguageAndHasRoomForIt) {
    for (const QSize size : {QSize(240, 320), QSize(320, 240), QSize(480, 640)}) {
        Resize(size);
        m_program.EachView([this](CScreen&, const QString& where) { Check(Window(), where); });
    }
    EXPECT_GT(m_texts.Seen(), 500);
}

TEST_F(PseudoWalk, EveryDialogSpeaksTheLanguageAndHasRoomForIt) {
    Resize({240, 320});
    PressAll(Window().Menu(), "menu", 0);
    m_program.EachView([this](CScreen& screen, const QString& where) { PressAll(screen, where, 0); });
    EXPECT_GT(m_met.size(), 10U);
}

/// Those that nothing above leads to, too, with what the template itself says.
TEST_F(PseudoWalk, EveryTemplateHasRoomOnTheSmallestScreen) {
    Resize({240, 320});
    int dialogs = 0;
    for (const auto& [name, number] : test::NumberedNames("control_ids.h", "kDialog")) {
        CTemplateDialog dialog(m_resources->Dialog(number).value_or(DialogTemplate{}), &Window());
        dialog.show();
        EXPECT_TRUE(dialog.windowTitle().startsWith('[')) << name;
        Check(dialog, QString::fromStdString(name));
        ++dialogs;
    }
    EXPECT_GT(dialogs, 15);
}

}  // namespace
}  // namespace rlx

#include "tools/packing/ui/packing_page.h"

#include "shell/command_ids.h"
#include "shell/control_ids.h"
#include "tools/packing/text_ids.h"
#include "tools/packing/ui/add_items_dialog.h"
#include "tools/packing/ui/packing_dialogs.h"
#include "ui/tools/tools_test_device.h"

namespace rlx {
namespace {

constexpr const char* kFile = "/app/pack.dat";
constexpr const char* kTrip =
    ">\r\nAll\r\n*\r\nAll Items\r\nMap0\r\nHat1\r\n>\r\nTrip\r\n*\r\nAll Items\r\nHat0\r\n*\r\nBag\r\nHat0\r\n<";

class PackingPage : public testing::Test {
protected:
    PackingPage() {
        m_device.files.files[kFile] = kTrip;
        m_page.resize(240, 260);
        m_page.show();
        m_page.Entered();
    }

    template <typename Widget>
    Widget& Find(const char* name) {
        return *m_page.findChild<Widget*>(name);
    }

    void Command(int id) { Find<QAction>(qPrintable(QStringLiteral("command_%1").arg(id))).trigger(); }

    /// Does a command and then, in the dialog that it opens, `act`.
    template <typename Dialog>
    void InDialog(int command, std::function<void(Dialog&)> act) {
        bool seen = false;
        QTimer::singleShot(0, &m_page, [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            seen = true;
            act(*dialog);
            dialog->close();
        });
        Command(command);
        EXPECT_TRUE(seen);
    }

    void AddItems(const QString& text, std::function<void(CAddItemsDialog&)> before = {}) {
        InDialog<CAddItemsDialog>(kCommandAddItems, [&](CAddItemsDialog& dialog) {
            dialog.Control<QPlainTextEdit>(kControlItemText)->setPlainText(text);
            if (before) before(dialog);
            QTest::keyClick(dialog.Control<QPlainTextEdit>(kControlItemText), Qt::Key_Return);
        });
    }

    QStringList Rows() {
        QStringList rows;
        const QAbstractItemModel& model = *m_view.model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const bool ticked = model.index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
            rows << (ticked ? "+" : "-") + model.index(row, 0).data().toString();
        }
        return rows;
    }

    /// The text of the one box that was shown since the last call.
    std::u16string Told() {
        EXPECT_EQ(m_device.boxes.shown.size(), 1U);
        const std::u16string text = m_device.boxes.shown.empty() ? u"" : m_device.boxes.shown.back().text;
        m_device.boxes.shown.clear();
        return text;
    }

    QString Packed() { return Find<QLabel>("packed").text(); }

    test::ToolsDevice m_device;
    CPackingPage m_page{m_device.files, "/app", m_device.resources, m_device.boxes, m_device.look};
    QComboBox& m_categories = Find<QComboBox>("categories");
    QComboBox& m_lists = Find<QComboBox>("lists");
    CPackingListView& m_view = Find<CPackingListView>("items");
};

TEST_F(PackingPage, ShowsAndTicks) {
    EXPECT_EQ(Rows(), QStringList({"-Map", "+Hat"}));
    EXPECT_EQ(Packed(), "1 of 2 packed");
    const QPoint row = m_view.visualRect(m_view.model()->index(0, 0)).center();
    QTest::mouseClick(m_view.viewport(), Qt::LeftButton, {}, row + QPoint(60, 0));
    EXPECT_EQ(Rows(), QStringList({"+Map", "+Hat"}));
    QTest::keyClick(&m_view, Qt::Key_Down);
    QTest::keyClick(&m_view, Qt::Key_Space);
    EXPECT_EQ(Rows(), QStringList({"+Map", "-Hat"}));
    EXPECT_EQ(Packed(), "1 of 2 packed");
    m_device.boxes.answers = {BoxAnswer::kYes};
    EXPECT_TRUE(m_page.MayLeave());
    EXPECT_EQ(Told(), u"Do you want to save Packing list changes?");
    EXPECT_NE(m_device.files.files[kFile].find("Map1\r\nHat0"), std::string::npos);
    m_categories.setCurrentIndex(1);
    EXPECT_EQ(m_lists.count(), 2);
    m_lists.setCurrentIndex(1);
    EXPECT_EQ(Rows(), QStringList({"-Hat"}));
}

TEST_F(PackingPage, FiltersAndSaysWhichOne) {
    Command(kCommandShowUnchecked);
    EXPECT_EQ(Rows(), QStringList({"-Map"}));
    EXPECT_EQ(Find<QToolButton>("filterMark").text(), "Show Unchecked");
    QTest::keyClick(&m_view, Qt::Key_Space);
    EXPECT_EQ(Rows(), QStringList({"+Map"}));  // not yet taken from below the finger
    Command(kCommandShowUnchecked);
    EXPECT_TRUE(Rows().isEmpty());
    EXPECT_EQ(m_view.EmptyText(), "Every item is checked.");
    Find<QToolButton>("filterMark").click();
    EXPECT_EQ(Rows().size(), 2);
    EXPECT_TRUE(Find<QToolButton>("filterMark").isHidden());
    Command(kCommandShowChecked);
    EXPECT_EQ(Rows(), QStringList({"+Map", "+Hat"}));
    Command(kCommandUncheckAll);
    EXPECT_EQ(m_view.EmptyText(), "No item is checked.");
}

TEST_F(PackingPage, AddsItems) {
    m_categories.setCurrentIndex(1);
    AddItems("Socks", [](CAddItemsDialog& dialog) {
        auto& lists = *dialog.Control<QTreeView>(kControlItemLists);
        QTest::keyClick(&lists, Qt::Key_Space);  // Bag
        EXPECT_TRUE(dialog.Control<QTreeView>(kControlItemCategories)->isHidden());
    });
    EXPECT_EQ(Rows(), QStringList({"-Hat", "-Socks"}));
    EXPECT_EQ(m_view.currentIndex().data().toString(), "Socks");
    AddItems("- Tent\n\n- *\nSocks\n• Rope", [&](CAddItemsDialog& dialog) {
        QTest::keyClick(dialog.Control<QPlainTextEdit>(kControlItemText), Qt::Key_Return);
        EXPECT_EQ(dialog.Control<QPlainTextEdit>(kControlItemText)->toPlainText(), "*");
        EXPECT_EQ(Told(), m_device.resources.Text(kTextItemRefused));
    });
    EXPECT_EQ(Told(), m_device.resources.Text(kTextItemRefused));
    EXPECT_EQ(Rows(), QStringList({"-Hat", "-Socks", "-Tent", "-Rope"}));
    m_lists.setCurrentIndex(1);
    EXPECT_EQ(Rows(), QStringList({"-Hat", "-Socks"}));
}

TEST_F(PackingPage, AddsFromAll) {
    m_categories.setCurrentIndex(1);
    m_lists.setCurrentIndex(1);
    AddItems("", [](CAddItemsDialog& dialog) {
        QTimer::singleShot(0, &dialog, [&dialog] {
            auto* fromAll = dialog.findChild<CTemplateDialog*>("addFromAll");
            ASSERT_NE(fromAll, nullptr);
            QTest::keyClick(fromAll->Control<QTreeView>(kControlFromItems), Qt::Key_Space);  // Map
            fromAll->accept();
        });
        dialog.Control<QPushButton>(kControlAddFromAll)->click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        dialog.Control<QPlainTextEdit>(kControlItemText)->setPlainText("Rope");
    });
    EXPECT_EQ(Rows(), QStringList({"-Hat", "-Map", "-Rope"}));
}

TEST_F(PackingPage, AddsCategoriesAndLists) {
    InDialog<CNewCategoryDialog>(kCommandAddCategory, [this](CNewCategoryDialog& dialog) {
        dialog.Control<QLineEdit>(kControlName)->setText("trip");
        dialog.accept();
        EXPECT_EQ(Told(), u"Category < trip > already exists!");
        EXPECT_TRUE(dialog.isVisible());
        dialog.Control<QLineEdit>(kControlName)->clear();
        auto& choice = *dialog.Control<QComboBox>(kControlTemplate);
        choice.setFocus();
        QTest::keyClick(&choice, Qt::Key_Down);
        EXPECT_EQ(dialog.Control<QLineEdit>(kControlName)->text(), choice.currentText());
        dialog.accept();
    });
    EXPECT_EQ(m_categories.currentText(), "City break");
    EXPECT_EQ(Rows().size(), 16);
    InDialog<CPackingTextDialog>(kCommandAddList, [](CPackingTextDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Packing List > New list");
        QTest::keyClicks(dialog.Control<QLineEdit>(kControlName), QString(60, 'n'));
        dialog.accept();
    });
    EXPECT_EQ(m_lists.currentText(), QString(50, 'n'));
}

TEST_F(PackingPage, EditsByDoubleClick) {
    const QPoint row = m_view.visualRect(m_view.model()->index(0, 0)).center();
    QTimer::singleShot(0, &m_page, [] {
        auto& dialog = *qobject_cast<CPackingTextDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(dialog.windowTitle(), "Edit item");
        dialog.Control<QLineEdit>(kControlName)->setText("World map");
        dialog.accept();
    });
    QTest::mouseClick(m_view.viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(m_view.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(Rows(), QStringList({"-World map", "+Hat"}));
}

TEST_F(PackingPage, DeletesAndTakesItBack) {
    auto& undo = Find<QToolButton>("undoDelete");
    EXPECT_TRUE(undo.isHidden());
    Command(kCommandDeleteItem);
    EXPECT_EQ(Rows(), QStringList({"+Hat"}));
    undo.click();
    EXPECT_EQ(Rows(), QStringList({"-Map", "+Hat"}));
    m_device.boxes.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    Command(kCommandDeleteAllItems);
    EXPECT_EQ(Told(), u"All Items of All Lists of All Categories will be deleted, Continue ?");
    EXPECT_EQ(Rows().size(), 2);
    Command(kCommandDeleteAllItems);
    EXPECT_TRUE(Rows().isEmpty());
    undo.click();
    m_categories.setCurrentIndex(1);
    Command(kCommandDeleteCategory);
    EXPECT_EQ(m_categories.count(), 1);
    undo.click();
    EXPECT_EQ(m_categories.currentText(), "Trip");
}

}  // namespace
}  // namespace rlx

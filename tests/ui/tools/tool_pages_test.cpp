#include "shell/control_ids.h"
#include "tools/clothing/ui/clothing_tool.h"
#include "tools/converter/ui/converter_tool.h"
#include "tools/converter/ui/unit_dialog.h"
#include "tools/dialing/ui/dialing_tool.h"
#include "ui/tools/tools_test_device.h"

namespace rlx {
namespace {

void ShowAt(QWidget& widget, const QSize& size) {
    widget.resize(size);
    widget.show();
    QApplication::setActiveWindow(&widget);
    QCoreApplication::processEvents();
}

class ConverterTool : public ::testing::Test {
protected:
    ConverterTool() { ShowAt(page, {240, 216}); }

    void Choose(const char* combo, const char* typed) {
        test::ChooseIn(page, test::Child<CSearchCombo>(page, combo), typed);
    }

    void Category(int index) {
        auto* combo = test::Child<QComboBox>(page, "category");
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    void Type(const char* value) {
        auto* field = test::Child<QLineEdit>(page, "value");
        field->selectAll();
        QTest::keyClicks(field, value);
    }

    QString Result() { return test::Child<QLineEdit>(page, "result")->text(); }

    test::ToolsDevice device;
    CConverterTool page{device.store, device.settings, device.resources, device.boxes, device.look};
};

TEST_F(ConverterTool, ConvertsWhileOneTypesAndAfterEachChoice) {
    EXPECT_EQ(Result(), "0");
    Category(6);
    Choose("fromUnit", "Short ton");
    EXPECT_EQ(test::Child<CSearchCombo>(page, "fromUnit")->text(), "Short ton");
    Choose("toUnit", "kilog");
    Type("1");
    EXPECT_EQ(Result(), "907.18474");
    QTest::mouseClick(test::Child<QToolButton>(page, "copy"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "907.18474");
    QTest::mouseClick(test::Child<QToolButton>(page, "swap"), Qt::LeftButton);
    EXPECT_EQ(test::Child<CSearchCombo>(page, "toUnit")->text(), "Short ton");
    EXPECT_EQ(Result().left(8), "0.001102");
    QTest::mouseClick(test::Child<QPushButton>(page, "reset"), Qt::LeftButton);
    EXPECT_EQ(test::Child<QLineEdit>(page, "value")->text(), "0");
    EXPECT_EQ(Result(), "0");
}

class UnitDialog : public ::testing::Test {
protected:
    UnitDialog() {
        database.Open();
        dialog.emplace(database, device.resources, device.boxes, 6, nullptr);
        QObject::connect(&*dialog, &CUnitDialog::UnitsChanged, [this] { ++changes; });
        ShowAt(*dialog, {240, 320});
    }

    void Add(const char* name, const char* value) {
        dialog->Control<QLineEdit>(kControlUnitName)->setText(name);
        auto* field = dialog->Control<QLineEdit>(kControlUnitValue);
        field->setText(value);
        QTest::keyClick(field, Qt::Key_Return);
    }

    QString Selected() { return List()->currentIndex().siblingAtColumn(0).data().toString(); }
    QTreeView* List() { return dialog->Control<QTreeView>(kControlUnitList); }

    test::ToolsDevice device;
    CUnitDatabase database{device.store};
    std::optional<CUnitDialog> dialog;
    int changes = 0;
};

TEST_F(UnitDialog, AddsRefusesAndDeletes) {
    const QAbstractItemModel* units = List()->model();
    EXPECT_EQ(units->rowCount(), 23);
    Add("Bag", "25");
    EXPECT_EQ(units->rowCount(), 24);
    EXPECT_EQ(Selected(), "Bag");
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(dialog->isVisible());
    Add("tONNE", "1");
    ASSERT_EQ(device.boxes.shown.size(), 1U);
    EXPECT_EQ(device.boxes.shown[0].text, u"Unit < tONNE > already exists!");
    EXPECT_EQ(units->rowCount(), 24);
    EXPECT_EQ(dialog->Control<QLineEdit>(kControlUnitName)->text(), "tONNE") << "to be mended";
    device.boxes.answers = {BoxAnswer::kNo, BoxAnswer::kYes};
    auto* remove = dialog->Control<QPushButton>(kControlUnitDelete);
    QTest::mouseClick(remove, Qt::LeftButton);
    EXPECT_EQ(units->rowCount(), 24);
    QTest::mouseClick(remove, Qt::LeftButton);
    EXPECT_EQ(device.boxes.shown.back().text, u"Delete < Bag > Unit?");
    EXPECT_EQ(units->rowCount(), 23);
    EXPECT_EQ(changes, 2);
    dialog->Control<QComboBox>(kControlUnitCategory)->setCurrentIndex(4);
    EXPECT_EQ(units->rowCount(), 81) << "volumes, for temperatures are left out";
}

class DialingTool : public ::testing::Test {
protected:
    DialingTool() { ShowAt(page, {240, 216}); }

    static QString SelectedIn(const QTreeView* list) {
        const QModelIndexList rows = list->selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : rows.front().data().toString().trimmed();
    }

    test::ToolsDevice device;
    CDialingTool page{device.resources, device.look};
    QTreeView* countries = test::Child<QTreeView>(page, "internationalCodes");
    QTreeView* cities = test::Child<QTreeView>(page, "usCodes");
    QLineEdit* field = test::Child<QLineEdit>(page, "dialingFind");
};

TEST_F(DialingTool, FindsWhileOneTypes) {
    EXPECT_EQ(field->text(), "keyword...");
    page.Entered();
    EXPECT_EQ(field->selectedText(), "keyword...");
    QTest::keyClicks(field, "ger");
    EXPECT_EQ(SelectedIn(countries), "Germany");
    EXPECT_TRUE(countries->viewport()->rect().intersects(countries->visualRect(countries->currentIndex())));
    QTest::keyClicks(field, "q");
    EXPECT_EQ(SelectedIn(countries), "");
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(SelectedIn(countries), "Germany");
}

TEST_F(DialingTool, SwitchesTablesAndKeepsTheText) {
    field->setText("fort");
    test::Child<QComboBox>(page, "dialingTable")->setCurrentIndex(1);
    EXPECT_TRUE(cities->isVisible());
    EXPECT_FALSE(countries->isVisible());
    EXPECT_EQ(field->text(), "fort");
    QTest::keyClicks(field, " ");
    EXPECT_TRUE(SelectedIn(cities).startsWith("Fort "));
}

TEST(ClothingTool, ShowsTheTableOfThePressedButton) {
    test::ToolsDevice device;
    CClothingTool page(device.resources, device.look);
    ShowAt(page, {240, 216});
    auto* title = test::Child<QLabel>(page, "sizesTitle");
    auto* garment = test::Child<QComboBox>(page, "garment");
    auto* men = test::Child<QPushButton>(page, "men");
    auto* women = test::Child<QPushButton>(page, "women");
    EXPECT_EQ(title->text(), "Men's shoes");
    EXPECT_TRUE(men->isChecked());
    garment->setCurrentIndex(2);
    QTest::mouseClick(women, Qt::LeftButton);
    EXPECT_EQ(title->text(), "Women's blouses & sweaters");
    EXPECT_TRUE(women->isChecked() && !men->isChecked());
    garment->setCurrentIndex(0);
    EXPECT_FALSE(women->isChecked() || men->isChecked());
}

TEST(SizeGrid, EveryTableFitsTheSmallestWindow) {
    for (int id = 0; id <= static_cast<int>(SizeTableId::kChildrensTrousers); ++id) {
        for (const int width : {222, 260}) {
            const SizeGrid grid = LayOutSizes(SizesOf(static_cast<SizeTableId>(id)), width, QApplication::font());
            EXPECT_TRUE(grid.fits) << id << " in " << width;
        }
    }
}

}  // namespace
}  // namespace rlx

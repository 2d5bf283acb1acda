#include "tools/packing/packing_organizer.h"

#include "base/text.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/scripted_message_boxes.h"
#include "support/number_texts.h"
#include "tools/packing/packing_templates.h"

namespace rlx {
namespace {

const std::filesystem::path kFile = "/home/pack.dat";
const std::filesystem::path kBackup = "/home/pack.dat.bak";
const std::string kEmptyFile = ">\r\nAll\r\n*\r\nAll Items\r\n<";

class PackingOrganizerTest : public testing::Test {
protected:
    PackingOrganizerTest() {
        m_folder.CreateFolder("/home");
        m_pack.Load();
    }

    void LoadBytes(const std::string& bytes) {
        m_folder.files[kFile] = bytes;
        m_pack.Load();
    }

    /// Category "Trip" with the lists "Bag" and "Box"; "Bag" is current.
    void MakeTrip() {
        ASSERT_TRUE(m_pack.AddCategory(u"Trip") && m_pack.AddList(u"Bag") && m_pack.AddList(u"Box"));
        m_pack.SelectList(1);
    }

    /// "a b*" for the items a and the ticked b of a list.
    std::u16string Items(ListPlace place) const {
        std::u16string shown;
        for (const PackingItem& item : m_pack.Lists().List(place).items)
            shown += (shown.empty() ? u"" : u" ") + item.text + (item.ticked ? u"*" : u"");
        return shown;
    }

    /// The text of the only box that was shown since the last call; empty when there was none.
    std::u16string Told() {
        EXPECT_LE(m_boxes.shown.size(), 1U);
        const std::u16string text = m_boxes.shown.empty() ? u"" : m_boxes.shown.back().text;
        m_boxes.shown.clear();
        return text;
    }

    CMemoryFileSystem m_folder;
    test::CNumberTexts m_texts;
    CScriptedMessageBoxes m_boxes;
    CPackingOrganizer m_pack{m_folder, "/home", m_texts, m_boxes};
};

TEST_F(PackingOrganizerTest, AddsToOtherListsAndTellsOnceWhatWasThere) {
    MakeTrip();
    ASSERT_TRUE(m_pack.AddItem(u"map"));
    m_pack.SelectList(2);
    EXPECT_TRUE(m_pack.AddItem(u"map", {{1, 1}, {1, 0}, {0, 0}}));
    EXPECT_EQ(Told(), u"{41016}map{32945}");
    EXPECT_EQ(Items({1, 2}), u"map");
    EXPECT_TRUE(m_pack.AddItem(u"pen", {{1, 1}, {1, 0}, {0, 0}, {7, 7}}));
    EXPECT_EQ(Told(), u"");
    EXPECT_EQ(Items({1, 1}), u"map pen");
    EXPECT_EQ(Items({0, 0}), u"map pen");

    const PackingAdded added = m_pack.AddItems(PastedItems(u"- hat\r\n\n  * pen\n\u2022 cap\r> \r<b"), {{1, 1}});
    EXPECT_EQ(Told(), u"{41017}");
    EXPECT_EQ(added.added, 2U);
    EXPECT_EQ(added.existing, 1U);
    EXPECT_EQ(added.refused, 2U);
    EXPECT_EQ(Items({1, 1}), u"map pen hat cap");
}

TEST_F(PackingOrganizerTest, DeletesWithUndo) {
    MakeTrip();
    m_pack.AddItems({u"a", u"b", u"c"}, {{1, 1}});
    const CPackingLists full = m_pack.Lists();
    EXPECT_TRUE(m_pack.DeleteItem(1));
    EXPECT_EQ(Items({1, 1}), u"a c");
    EXPECT_EQ(Items({1, 0}), u"a b c");
    EXPECT_TRUE(m_pack.UndoDelete());
    EXPECT_EQ(m_pack.Lists(), full);
    EXPECT_FALSE(m_pack.UndoDelete());

    EXPECT_TRUE(m_pack.DeleteList());
    EXPECT_EQ(m_pack.Lists().Categories()[1].lists[1].name, u"Box");
    EXPECT_EQ(m_pack.Current(), (ListPlace{1, 0}));
    EXPECT_TRUE(m_pack.DeleteCategory());
    EXPECT_EQ(m_pack.Current(), (ListPlace{0, 0}));
    EXPECT_EQ(Items({0, 0}), u"a b c");
    EXPECT_TRUE(m_pack.UndoDelete());
    EXPECT_EQ(m_pack.Current(), (ListPlace{1, 0}));
    EXPECT_TRUE(m_pack.DeleteItem(0));
    EXPECT_TRUE(m_pack.AddItem(u"d"));
    EXPECT_FALSE(m_pack.CanUndoDelete());  // would take "d" back too
    EXPECT_FALSE(m_pack.DeleteItem(99));
    EXPECT_FALSE(m_pack.EditItem(99, u"x"));
}

TEST_F(PackingOrganizerTest, EditedItemKeepsAllItemsWhole) {
    MakeTrip();
    m_pack.AddItems({u"shrit", u"hat"}, {{1, 1}, {1, 2}});
    ASSERT_TRUE(m_pack.SetTicked(0, true));
    EXPECT_TRUE(m_pack.EditItem(0, u"shirt"));
    EXPECT_EQ(Items({1, 1}), u"shirt* hat");
    EXPECT_EQ(Items({1, 2}), u"shrit hat");
    EXPECT_EQ(Items({1, 0}), u"shrit hat shirt");  // "Box" still has the old text
    m_pack.SelectList(2);
    EXPECT_TRUE(m_pack.EditItem(0, u"skirt"));
    EXPECT_EQ(Items({1, 0}), u"skirt hat shirt");
    EXPECT_EQ(Items({0, 0}), u"skirt hat shirt");
    EXPECT_FALSE(m_pack.EditItem(0, u"hat"));
    EXPECT_EQ(Told(), u"{41016}hat{32945}");
    EXPECT_TRUE(m_pack.EditItem(0, u"skirt"));
}

TEST_F(PackingOrganizerTest, SavesOnlyWhenAskedTo) {
    EXPECT_EQ(m_folder.files.at(kFile), "");
    EXPECT_TRUE(m_pack.Leave());
    EXPECT_EQ(Told(), u"");

    ASSERT_TRUE(m_pack.AddItem(u"tent"));
    EXPECT_TRUE(m_pack.Leave());
    EXPECT_EQ(
        m_boxes.shown,
        std::vector{(MessageBox{u"{32948}", u"{41015}", BoxIcon::kQuestion, BoxButtons::kYesNo, BoxAnswer::kYes})});
    Told();
    EXPECT_EQ(m_folder.files.at(kFile), "");
    EXPECT_FALSE(m_pack.IsChanged());
    EXPECT_EQ(Items({0, 0}), u"tent");

    ASSERT_TRUE(m_pack.SetTicked(0, true));
    m_boxes.answers = {BoxAnswer::kYes};
    EXPECT_TRUE(m_pack.Leave());
    Told();
    EXPECT_EQ(m_folder.files.at(kFile), ">\r\nAll\r\n*\r\nAll Items\r\ntent1\r\n<");
    EXPECT_FALSE(m_folder.files.contains(kBackup));
}

TEST_F(PackingOrganizerTest, NothingInTheFileIsLostBySaving) {
    struct {
        const char* name;
        std::string loaded;
        std::string meanwhile;  ///< what stands in the file when it is saved
        std::string kept;       ///< the ".bak"; empty: there is none
        std::u16string told;
    } const kRows[] = {
        {"malformed", "my notes", "my notes", "my notes", u""},
        {"changed meanwhile", kEmptyFile, "theirs", "theirs", u"{41034}"},
        {"made meanwhile", "", "theirs", "theirs", u"{41034}"},
    };
    for (const auto& [name, loaded, meanwhile, kept, told] : kRows) {
        m_folder.files.clear();
        LoadBytes(loaded);
        EXPECT_EQ(Told(), u"") << name;
        m_folder.files[kFile] = meanwhile;
        if (!kept.empty()) m_folder.readOnly.insert(kBackup);
        EXPECT_EQ(m_pack.Save(), kept.empty()) << name;
        EXPECT_EQ(Told(), kept.empty() ? u"" : u"{41033}") << name;
        EXPECT_EQ(m_folder.files.at(kFile) == meanwhile, !kept.empty() || meanwhile == kEmptyFile) << name;

        m_folder.readOnly.clear();
        EXPECT_TRUE(kept.empty() || m_pack.Save()) << name;
        EXPECT_EQ(Told(), told) << name;
        EXPECT_EQ(m_folder.files.at(kFile), kEmptyFile) << name;
        EXPECT_TRUE(m_folder.files[kBackup] == kept) << name;
    }
}

}  // namespace
}  // namespace rlx

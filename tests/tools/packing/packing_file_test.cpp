#include "tools/packing/packing_file.h"

#include "base/text.h"

namespace rlx {
namespace {

using Categories = std::vector<PackingCategory>;

const Categories kDefault = {{u"All", {{u"All Items", {}}}}};

TEST(PackingFile, ReadsTheGrammar) {
    struct {
        const char* name;
        std::string bytes;
        Categories expected;
        bool lossy;
    } const kRows[] = {
        {"several lists and categories",
         ">\r\nAll\r\n*\r\nAll Items\r\nTent0\r\n>\r\nTrip\r\n*\r\nAll Items\r\nTent1\r\n*\r\nBag\r\n<",
         {{u"All", {{u"All Items", {{u"Tent", false}}}}}, {u"Trip", {{u"All Items", {{u"Tent", true}}}, {u"Bag", {}}}}},
         false},
        {"text ends in a tick digit",
         ">\r\nAll\r\n*\r\nAll Items\r\nShoes 110\r\nPlan 01\r\nX?\r\n<",
         {{u"All", {{u"All Items", {{u"Shoes 11", false}, {u"Plan 0", true}, {u"X", false}}}}}},
         true},
        {"line feeds only",
         ">\nAll\n*\nAll Items\nPassport1\nSock0\n<",
         {{u"Al", {{u"All Item", {{u"Passpor", false}, {u"Soc", false}}}}}},
         true},
        {"markers are known by their first character",
         ">>\r\nAll\r\n* list\r\n*Mine\r\nTent1\r\n<end\r\n",
         {{u"All", {{u"*Mine", {{u"Tent", true}}}}}},
         true},
        {"Windows-1252",
         ">\r\nAll\r\n*\r\nAll Items\r\nK\xE4se \x80"
         "1\r\n<",
         {{u"All", {{u"All Items", {{u"Käse €", true}}}}}},
         false},
        {"text behind the end", ">\r\nAll\r\n*\r\nAll Items\r\n<\r\nTent1\r\n", kDefault, true},
        {"empty", "", kDefault, false},
    };
    for (const auto& [name, bytes, expected, lossy] : kRows) {
        const PackingFile file = ReadPackingFile(bytes);
        EXPECT_EQ(file.lists.Categories(), expected) << name;
        EXPECT_EQ(file.lossy, lossy) << name;
        const PackingFile again = ReadPackingFile(WritePackingFile(file.lists));
        EXPECT_EQ(again.lists, file.lists) << name;
        EXPECT_FALSE(again.lossy) << name;
    }
}

TEST(PackingFile, TakesTenCategoriesOfTenLists) {
    std::string bytes;
    for (int category = 0; category < 10; ++category) {
        bytes += ">\r\nc\r\n";
        for (int list = 0; list < 10; ++list)
            bytes += "*\r\nl\r\n";
    }
    const PackingFile full = ReadPackingFile(bytes + "<");
    EXPECT_FALSE(full.lossy);
    EXPECT_EQ(full.lists.Categories().size(), 10U);
    EXPECT_EQ(full.lists.Categories().back().lists.size(), 10U);

    const PackingFile oneList = ReadPackingFile(bytes + "*\r\nl\r\nTent1\r\n<");
    EXPECT_TRUE(oneList.lossy);
    EXPECT_EQ(oneList.lists, full.lists);
    const PackingFile oneCategory = ReadPackingFile(bytes + ">\r\nc\r\n*\r\nl\r\n<");
    EXPECT_TRUE(oneCategory.lossy);
    EXPECT_EQ(oneCategory.lists, full.lists);
}

// Whatever the lists accept, the file must give back.
TEST(PackingFile, WhatTheListsAcceptReadsBack) {
    const std::u16string texts[] = {u"1",
                                    u" >Tent",
                                    u"a*<",
                                    u"\xD83C\xDF92",
                                    std::u16string(1, 0xD800),
                                    std::u16string(u"a\0b", 3),
                                    std::u16string(3000, u'x')};
    CPackingLists lists;
    ASSERT_EQ(lists.AddCategory(u"Trip ✈"), PackingChange::kDone);
    ASSERT_EQ(lists.AddList(1, u" 1"), PackingChange::kDone);
    for (const std::u16string& text : texts)
        EXPECT_EQ(lists.AddItem({1, 1}, text), PackingChange::kDone) << ToUtf8(text);
    EXPECT_EQ(lists.SetTicked({1, 1}, 3, true), PackingChange::kDone);
    EXPECT_EQ(ReadPackingFile(WritePackingFile(lists)).lists, lists);

    for (const auto* text : {u"", u" ", u">x", u"*x", u"<", u"a\nb", u"a\rb", u"x\r", u"\n"}) {
        EXPECT_EQ(lists.AddItem({0, 0}, text), PackingChange::kBadItem) << ToUtf8(text);
        EXPECT_EQ(lists.EditItem({1, 1}, 0, text), PackingChange::kBadItem) << ToUtf8(text);
        EXPECT_EQ(lists.AddCategory(text), PackingChange::kBadName) << ToUtf8(text);
        EXPECT_EQ(lists.AddList(0, text), PackingChange::kBadName) << ToUtf8(text);
    }
    EXPECT_EQ(lists.AddCategory(std::u16string(51, u'x')), PackingChange::kBadName);
    EXPECT_EQ(lists.AddCategory(std::u16string(50, u'x')), PackingChange::kDone);
    EXPECT_EQ(ReadPackingFile(WritePackingFile(lists)).lists, lists);
}

}  // namespace
}  // namespace rlx

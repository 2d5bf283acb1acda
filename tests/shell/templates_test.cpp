#include <set>

#include "base/text.h"
#include "shell/command_ids.h"
#include "shell/control_ids.h"
#include "shell/english_image.h"
#include "shell/resources.h"
#include "support/numbered_names.h"

namespace rlx {
namespace {

/// Builds a resource byte by byte.
struct Builder {
    Builder& U16(unsigned value) {
        for (int shift : {0, 8})
            bytes.push_back(static_cast<std::byte>(value >> shift));
        return *this;
    }
    Builder& U32(std::uint32_t value) { return U16(value & 0xFFFF).U16(value >> 16); }
    Builder& Text(std::u16string_view text) {
        for (const char16_t unit : text)
            U16(unit);
        return U16(0);
    }
    Builder& Align() {
        while (bytes.size() % 4 != 0)
            bytes.push_back(std::byte{0xEE});
        return *this;
    }
    std::vector<std::byte> bytes;
};

void Collect(const MenuTemplate& menu, std::multiset<int>& commands) {
    for (const auto& entry : menu) {
        if (entry.kind == MenuEntry::Kind::kCommand) commands.insert(entry.id);
        Collect(entry.entries, commands);
    }
}

TEST(MenuTest, EveryCommandStandsInOneMenu) {
    std::multiset<int> inMenus;
    for (const auto& [name, number] : test::NumberedNames("command_ids.h", "kMenu")) {
        const auto menu = CResources().Menu(number);
        ASSERT_TRUE(menu) << name;
        Collect(*menu, inMenus);
    }
    const auto commands = test::NumberedNames("command_ids.h", "kCommand");
    for (const auto& [name, number] : commands)
        EXPECT_EQ(inMenus.count(number), 1U) << name;
    EXPECT_EQ(inMenus.size(), commands.size());
}

TEST(MenuTest, BrokenMenusAreRefused) {
    const auto image = CPeImage::Open(EnglishImage());
    const auto good = *image->Find(ResourceType::kMenu, kMenuPacking);
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(ParseMenu(good.first(size))) << size;

    Builder deep;
    deep.U32(0);
    for (int i = 0; i < 100000; ++i)
        deep.U16(0x10).Text(u"");
    EXPECT_FALSE(ParseMenu(deep.bytes)) << "popups without end";
    Builder wide;
    wide.U32(0);
    for (int i = 0; i < 600; ++i)
        wide.U16(i == 599 ? 0x80 : 0).U16(7).Text(u"x");
    EXPECT_FALSE(ParseMenu(wide.bytes)) << "too many entries";
    EXPECT_FALSE(ParseMenu(Builder().U32(1).U16(0x80).U16(7).Text(u"x").bytes)) << "another version";
    EXPECT_FALSE(ParseMenu(Builder().U16(0).U16(0xFFFF).U16(0x80).U16(7).Text(u"x").bytes)) << "header past the end";
}

TEST(DialogTest, EveryControlStandsInADialogThatHoldsIt) {
    std::set<int> inDialogs;
    for (const auto& [name, number] : test::NumberedNames("control_ids.h", "kDialog")) {
        const auto dialog = CResources().Dialog(number);
        ASSERT_TRUE(dialog) << name;
        EXPECT_NE(dialog->title, u"") << name;
        int defaults = 0;
        std::set<int> own;
        for (const auto& control : dialog->controls) {
            EXPECT_TRUE(control.visible) << name << " " << control.id;
            EXPECT_NE(control.kind, ControlKind::kOther) << name << " " << control.id;
            EXPECT_TRUE(control.x >= 0 && control.x + control.width <= dialog->width && control.width > 0) << name;
            EXPECT_TRUE(control.y >= 0 && control.height > 0) << name << " " << control.id;
            EXPECT_TRUE(control.id == -1 || own.insert(control.id).second) << name << " repeats " << control.id;
            defaults += control.defaultButton ? 1 : 0;
        }
        EXPECT_EQ(defaults, 1) << name;
        inDialogs.insert(own.begin(), own.end());
    }
    for (const auto& [name, number] : test::NumberedNames("control_ids.h", "kControl")) {
        EXPECT_TRUE(inDialogs.contains(number)) << name;
    }
}

TEST(DialogTest, PlainFormIsRead) {
    Builder plain;
    plain.U32(0x80C80040).U32(0).U16(2).U16(0).U16(0).U16(100).U16(50);
    plain.U16(0).U16(0xFFFF).U16(0x8002).Text(u"Titel").U16(9).Text(u"Tahoma").Align();
    plain.U32(0x50010824).U32(0).U16(1).U16(2).U16(3).U16(4).U16(77).U16(0xFFFF).U16(0x81).Text(u"ab");
    plain.U16(6).U32(0xDEADBEEF).Align();
    plain.U32(0x08010003).U32(0).U16(5).U16(0xFFFF).U16(7).U16(8).U16(78).Text(u"Button").Text(u"&c").U16(0);
    const auto dialog = ParseDialog(plain.bytes);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->title, u"Titel");
    EXPECT_EQ(dialog->font, u"Tahoma");
    EXPECT_EQ(dialog->fontSize, 9);
    EXPECT_EQ(dialog->height, 50);
    const auto& edit = dialog->controls.at(0);
    EXPECT_EQ(edit.kind, ControlKind::kEdit);
    EXPECT_TRUE(edit.readOnly && edit.multiline && edit.password && edit.visible && edit.tabStop && edit.enabled);
    EXPECT_EQ(edit.id, 77);
    const auto& box = dialog->controls.at(1);
    EXPECT_EQ(box.kind, ControlKind::kCheckBox);
    EXPECT_EQ(box.text, u"&c");
    EXPECT_EQ(box.y, -1);
    EXPECT_FALSE(box.visible || box.enabled);
}

TEST(DialogTest, BrokenDialogsAreRefused) {
    const auto image = CPeImage::Open(EnglishImage());
    const auto good = *image->Find(ResourceType::kDialog, kDialogLanguage);
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(ParseDialog(good.first(size))) << size;

    std::vector<std::byte> lying(good.begin(), good.end());
    lying[16] = lying[17] = std::byte{0xFF};  // number of controls
    EXPECT_FALSE(ParseDialog(lying));
    lying[16] = std::byte{4};
    lying[17] = std::byte{0};
    EXPECT_FALSE(ParseDialog(lying)) << "one control more than there is";
}

}  // namespace
}  // namespace rlx

#include "skins/skin_file.h"

#include "base/text.h"
#include "skins/skin.h"
#include "skins/skin_files.h"

namespace rlx {
namespace {

TEST(SkinFile, LookupsInBrokenTexts) {
    const struct {
        const char* name;
        const char* text;
        const char* section;
        const char* key;
        const char* sectionText;
        const char* value;
    } rows[] = {
        {"plain", "[A]\r\nK@12\r\n>\r\n*", "A", "K", "[A]\r\nK@12\r\n", "12"},
        {"key of the next section", "[A]\r\n>\r\n[B]\r\nK@1\r\n>*", "A", "K", "[A]\r\n", "!.!"},
        {"unclosed section swallows the next", "[A]\r\n[B]\r\nK@1\r\n>\r\n*", "A", "K", "[A]\r\n[B]\r\nK@1\r\n", "1"},
        {"no closing anywhere runs to the star", "[A]\r\n[B]\r\nK@1\r\n*K@2\r\n", "A", "K", "[A]\r\n[B]\r\nK@1\r\n",
         "1"},
        {"bare line feed loses a character", "[A]\nK@123\n>", "A", "K", "[A]\nK@123\n", "12"},
        {"tail of another key", "[A]\r\nXK@9\r\nK@1\r\n>", "A", "K", "[A]\r\nXK@9\r\nK@1\r\n", "9"},
        {"longer key is not found", "[A]\r\nCMDC@9\r\nCMD@1\r\n>", "A", "CMD", "[A]\r\nCMDC@9\r\nCMD@1\r\n", "1"},
        {"nothing at all", "", "A", "K", "!.!", "!.!"},
    };
    for (const auto& row : rows) {
        const std::u16string section = SectionText(Widen(row.text), Widen(row.section));
        EXPECT_EQ(section, Widen(row.sectionText)) << row.name;
        EXPECT_EQ(KeyValue(section, Widen(row.key)), Widen(row.value)) << row.name;
    }
}

TEST(SkinFile, OnlyTheFirstTokenCounts) {
    CMemoryStream stream("[A]\r\nK@1\r\n<[B]\r\n>");
    EXPECT_EQ(ReadSkinText(stream), u"[A]\r\nK@1\r\n");
    CMemoryStream big(std::string(5000, 'x'));
    EXPECT_EQ(ReadSkinText(big).size(), 1499U);
}

TEST(SkinFile, NumberCheckOfColours) {
    const struct {
        const char16_t* text;
        bool valid;
        std::optional<std::uint32_t> read;
    } rows[] = {
        {u"4294967295", true, 0xFFFFFFFF}, {u"4294967296", false, 0xFFFFFFFF},
        {u"-1", false, 0xFFFFFFFF},        {u"12x", false, 12},
        {u"", false, std::nullopt},        {u"\u0661", false, std::nullopt},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(IsSkinColour(row.text), row.valid) << ToUtf8(row.text);
        EXPECT_EQ(ParseSkinColour(row.text), row.read) << ToUtf8(row.text);
    }
}

TEST(SkinFile, NoKeyIsTheTailOfAnotherOfItsSection) {
    for (const SkinKeyRow& row : kSkinKeys) {
        for (const SkinKeyRow& other : kSkinKeys) {
            if (row.key == other.key || row.section != other.section) continue;
            EXPECT_FALSE(other.name.ends_with(row.name)) << ToUtf8(row.name) << ' ' << ToUtf8(other.name);
        }
    }
}

TEST(Skin, ColoursFallBackToTheTable) {
    const CSkin skin(u"[Clocks]\r\nCMDC@12\r\nCMD@none\r\nCMCN@-1\r\n>\r\n*", "/skins");
    EXPECT_EQ(skin.Colour(SkinKey::kClocksCMDC), 12U);
    EXPECT_EQ(skin.Colour(SkinKey::kClocksCMD), RowOf(SkinKey::kClocksCMD).fallback);
    EXPECT_EQ(skin.Colour(SkinKey::kClocksCMCN), 0xFFFFFFU);
    EXPECT_EQ(skin.Colour(SkinKey::kMapSHADCLR), RowOf(SkinKey::kMapSHADCLR).fallback);
}

TEST(Skin, PicturesStayInTheFolder) {
    auto files = test::FilesWith("");
    files.files["/skins/map.png"] = files.files["/skins/P/common.jpg"] = files.files["/outside.jpg"] = "picture";
    files.files["/skins/L/Caf\xC3\xA9.jpg"] = "picture";
    const CSkin skin(
        u"[Common Folders]\r\nP@\\P\r\nL@\\L\r\nS@\\S\r\n>\r\n[General]\r\nIF@\\P\\common.jpg\r\n>\r\n"
        u"[Clocks]\r\nBP@\\pic.jpg\r\nBL@\\Caf\u00C3\u00A9.jpg\r\nBS@\\..\\..\\outside.jpg\r\n>\r\n"
        u"[Map]\r\nMI@\\map.png\r\n>\r\n[Tools]\r\nBC@\\PIC.jpg\r\nBD@\\none.jpg\r\n>\r\n*",
        "/skins");
    using Path = std::optional<std::filesystem::path>;
    EXPECT_EQ(skin.Background(files, SkinSection::kClocks, SkinLayout::kPortrait), Path("/skins/P/pic.jpg"));
    EXPECT_EQ(skin.Background(files, SkinSection::kClocks, SkinLayout::kLandscape), Path("/skins/L/Caf\xC3\xA9.jpg"));
    EXPECT_EQ(skin.Background(files, SkinSection::kClocks, SkinLayout::kSquare), std::nullopt);
    EXPECT_EQ(skin.Background(files, SkinSection::kWeather, SkinLayout::kSquare), std::nullopt);
    EXPECT_EQ(skin.Picture(files, SkinKey::kMapMI, SkinLayout::kSquare), Path("/skins/map.png"));
    EXPECT_EQ(skin.Picture(files, SkinKey::kToolsBC, SkinLayout::kSquare), Path("/skins/S/pic.jpg"));
    EXPECT_EQ(skin.Picture(files, SkinKey::kToolsBD, SkinLayout::kSquare), std::nullopt);
    EXPECT_EQ(skin.CommonPicture(files, SkinLayout::kLandscape), Path("/skins/P/common.jpg"));
    EXPECT_EQ(skin.IconFolder(files), std::nullopt);
}

}  // namespace
}  // namespace rlx

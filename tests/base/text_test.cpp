#include "base/text.h"

#include "base/read_token.h"

namespace rlx {
namespace {

TEST(Text, BridgesKeepEveryByteAndRefuseBrokenUtf8) {
    std::string all;
    for (int i = 0; i < 256; ++i)
        all.push_back(static_cast<char>(i));
    EXPECT_EQ(Narrow(Widen(all)), all);
    EXPECT_EQ(Narrow(u"a\u20ACb"), "a?b");
    for (const std::u16string& text : {std::u16string(u"é\u20AC\u3042\U0001F600"), std::u16string(u"")}) {
        EXPECT_TRUE(IsUtf8(ToUtf8(text)));
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    }
    const std::u16string lone(1, char16_t{0xD800});
    EXPECT_EQ(ToUtf8(lone), "\xEF\xBF\xBD");
    for (const char* broken :
         {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "\xF0\x9F\x98"}) {
        EXPECT_FALSE(IsUtf8(broken));
        EXPECT_EQ(FromUtf8(broken).front(), 0xFFFD);
    }
    EXPECT_EQ(FromUtf8("a\xC3"
                       "b"),
              u"a\uFFFDb");
    EXPECT_EQ(FromWindows1252("\x80\x92\xE9"), u"\u20AC\u2019é");
}

TEST(Text, SearchIgnoresCaseAndAccents) {
    EXPECT_EQ(FoldForSearch(u"SÃO Tomé ÅÐ Øre Straße Łódź Žilina Œuvre"),
              u"sao tome ad ore strasse lodz zilina oeuvre");
    EXPECT_EQ(FoldForSearch(u"e\u0301"), u"e");
    EXPECT_TRUE(EqualIgnoringCase(u"ÀÞ×Ω", u"àþ×ω"));
    EXPECT_FALSE(EqualIgnoringCase(u"e", u"é"));
    EXPECT_TRUE(BeginsIgnoringCase(u"Fort Wayne", u"fORT"));
    EXPECT_FALSE(BeginsIgnoringCase(u"For", u"Fort"));
}

TEST(Text, SplitKeepsEmptyPieces) {
    using Pieces = std::vector<std::u16string>;
    EXPECT_EQ(Split(u"1:2::", u':'), (Pieces{u"1", u"2", u"", u""}));
    EXPECT_EQ(Split(u"", u':'), (Pieces{u""}));
    EXPECT_EQ(Trim(u" \t a b\r\n"), u"a b");
}

std::vector<std::u16string> Tokens(const std::string& bytes, char delimiter, int count) {
    CMemoryStream stream(bytes);
    CByteReader reader(stream);
    std::vector<std::u16string> tokens;
    for (int i = 0; i < count; ++i)
        tokens.push_back(ReadToken(reader, delimiter));
    return tokens;
}

TEST(ReadToken, FollowsItsRulesOnHostileText) {
    using T = std::vector<std::u16string>;
    EXPECT_EQ(Tokens("a;b", ';', 3), (T{u"a", u"b", u""}));
    EXPECT_EQ(Tokens(";;a;;b;", ';', 4), (T{u"", u"a", u"b", u""}));  // only one delimiter is skipped
    EXPECT_EQ(Tokens("x\r\n\ny", '\n', 2), (T{u"x\r", u"y"}));
    EXPECT_EQ(Tokens("\xE9\x80", '<', 1), (T{u"\u00E9\u0080"}));
    EXPECT_EQ(Tokens(std::string("a\0b;", 4), ';', 1), (T{std::u16string(u"a\0b", 3)}));
    EXPECT_EQ(Tokens("a\xFF"
                     "b",
                     '\xFF', 2),
              (T{u"a", u"b"}));
    const std::string longField = std::string(1498, 'x') + "yzz";
    EXPECT_EQ(Tokens(longField + ";next", ';', 2), (T{Widen(longField.substr(0, kMaxTokenLength)), u"next"}));
    EXPECT_EQ(Tokens(std::string(100000, 'q') + ";n", ';', 2)[1], u"n");
}

}  // namespace
}  // namespace rlx

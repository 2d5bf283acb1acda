#include "news/news_cleaner.h"

#include "base/text.h"

namespace rlx::test {
namespace {

std::string Cleaned(const std::string& page, const NewsLimits& limits = {}) {
    return ToUtf8(CleanNewsPage(FromUtf8(page), limits));
}

std::string Times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(NewsCleaner, LeavesTextLinksAndTables) {
    struct Case {
        std::string page;
        std::string cleaned;
    };
    const Case cases[] = {
        {"<HTML><TITLE>t</TITLE>\n<BODY bgcolor=red><P>caf\u00e9 &amp; 2 < 3<BR></BODY></HTML>",
         "\n<p>café &amp; 2 &lt; 3<br></p>"},
        {"<P ALIGN='center' onclick=x()>a<p style='color:red'>b", "<p align=\"center\">a</p><p>b</p>"},
        {"<a href='http://a/?b&amp;c=\"d\"' target=_top>x</A>", "<a href=\"http://a/?b&amp;c=&quot;d&quot;\">x</a>"},
        {"<script>if (a<b) '</p>'</script>x<style>p{}</STYLE ><!-- <p> -->y<!doctype z>", "xy"},
        {"<img src=x alt='Map of <b>'>.<img src=y alt=' '>", "[Map of &lt;b>]."},
        {"<strong>x</strong><em>y", "<b>x</b><i>y</i>"},
        {"<ul><li>a<li>b<ul><li>c</ul>d</ul>", "<ul><li>a</li><li>b<ul><li>c</li></ul>d</li></ul>"},
        {"<table width=600 border=1><tr><td width=50%>a<td>b</b><tr><th>c</table>d",
         "<table border=\"1\"><tr><td width=\"50%\">a</td><td>b</td></tr><tr><th>c</th></tr></table>d"},
        {"<td>a<tr>b</table>c", "abc"},
        {"<b><table><tr><td>x</b></div>y", "<b><table><tr><td>xy</td></tr></table></b>"},
        {"<p title='never ends>x", "<p></p>"},
        {std::string("a\0\x01"
                     "b",
                     4),
         "ab"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(Cleaned(each.page), each.cleaned) << each.page;
}

TEST(NewsCleaner, KeepsWithinItsLimits) {
    NewsLimits limits;
    limits.tables = 2;
    EXPECT_EQ(Cleaned(Times(3, "<table><tr><td>") + "x", limits),
              "<table><tr><td><table><tr><td></td></tr><tr><td>x</td></tr></table></td></tr></table>");
    limits.columns = 2;
    EXPECT_EQ(Cleaned("<table><tr><td>1<td>2<td>3", limits), "<table><tr><td>1</td><td>2</td>3</tr></table>");
    limits.depth = 3;
    EXPECT_EQ(Cleaned(Times(9, "<div>") + "x", limits), "<div><div><div>x</div></div></div>");
    limits.wordLength = 4;
    EXPECT_EQ(Cleaned("abcdefghij kl", limits), "abcd<br>efgh<br>ij kl");
    limits.length = 6;
    EXPECT_EQ(Cleaned("<b>abcdef</b>", limits), "<b>abc</b>");
}

}  // namespace
}  // namespace rlx::test

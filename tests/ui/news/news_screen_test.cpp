#include "news/ui/news_screen.h"

#include "platform/fake/fixed_clock.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/image/image_codec.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/scripted_server.h"

namespace rlx {
namespace {

class NewsScreen : public ::testing::Test {
protected:
    NewsScreen() {
        screen.resize(240, 260);
        screen.show();
    }

    void Put(const std::string& html) {
        files.files["/app/news.htm"] = html;
        screen.Entered();
    }
    void Flag(std::u16string_view name, std::uint32_t value) {
        settings.WriteDword(RootOf(keys::kRoamlytix), keys::kRoamlytix, name, value);
    }

    CMemoryFileSystem files;
    CImageCodec codec;
    CLook look{files, codec};
    CResources resources;
    CMemoryRegistry registry;
    CRegistryStore settings{registry};
    CScriptedMessageBoxes boxes;
    CNewsPage page{registry, files, resources, "/app"};
    QStringList opened;
    CFixedClock clock{{{2026, 11, 22}, 12, 0, 0, 0}};
    CNewsScreen screen{page, {clock, resources, boxes, look}, [this](const QUrl& link) { opened << link.toString(); }};
    CNewsView* view = screen.findChild<CNewsView*>("newsView");
};

TEST_F(NewsScreen, ShowingThePageSetsTheFlags) {
    Flag(names::kNewNews, 1);
    Flag(names::kNewsRead, 0);
    screen.Refresh();
    EXPECT_EQ(screen.findChild<QLabel*>("newsState")->text(), "There is news");
    QSignalSpy shown(&screen, &CNewsScreen::PageShown);
    Put("<html><body>caf\xC3\xA9</body></html>");
    EXPECT_EQ(view->toPlainText(), QString::fromUtf8("caf\xC3\xA9"));
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(screen.findChild<QLabel*>("newsState")->text(), "");
    EXPECT_FALSE(page.State().newNews);
    EXPECT_TRUE(page.State().newsRead);
}

/// The document of a page with tables within tables would take time that doubles with each.
TEST_F(NewsScreen, APageIsCleanedBeforeItIsLaidOut) {
    Put("<table><tr><td>" + QString("<table><tr><td>").repeated(500).toStdString() + "deep<script>no</script>");
    EXPECT_EQ(view->toPlainText().trimmed(), "deep");
}

/// Whatever a page asks for: nothing reaches the network, and no file beside the page is read.
TEST_F(NewsScreen, LoadsNothingButThePage) {
    test::CScriptedServer server({});
    const QString web = QString::fromStdU16String(server.Url());
    QTemporaryDir folder;
    const QString picture = folder.filePath("picture.png");
    QImage(300, 300, QImage::Format_RGB32).save(picture);
    for (const QString& url : {web, "file://" + picture, picture, QStringLiteral("javascript:alert(1)")}) {
        const QString html = QStringLiteral(
            "<html><head><base href='%1'><meta http-equiv=refresh content='0;url=%1'><link rel=stylesheet href='%1'>"
            "<style>@import url(%1); body { background-image: url(%1); list-style-image: url(%1) }</style></head>"
            "<body background='%1' onload='%1'><img src='%1'><table background='%1'><tr><td>text</table>"
            "<iframe src='%1'></iframe><object data='%1'></object><embed src='%1'><video src='%1'></video>"
            "<script src='%1'>x</script><form action='%1'><input type=image src='%1'></form></body></html>");
        Put(html.arg(url).toStdString());
        view->grab();
        QCoreApplication::processEvents();
        EXPECT_TRUE(server.Requests().empty()) << url.toStdString();
        EXPECT_TRUE(view->toPlainText().contains("text"));
        EXPECT_LT(view->document()->size().height(), 300) << "the picture was read: " << url.toStdString();
    }
}

TEST_F(NewsScreen, SaysWhereThePageComesFromAndHowOldItIs) {
    const auto origin = [this] { return screen.findChild<QWidget*>("zoomBar")->accessibleDescription(); };
    screen.Entered();
    EXPECT_EQ(origin(), "");
    EXPECT_EQ(view->toPlainText().trimmed(), "No news...");
    settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kNewsDate, u"2026-11-20");
    settings.WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kNewsSource, u"news.example.org");
    Put("<html><body>text</body></html>");
    EXPECT_EQ(origin(), "Fetched on 20/11/2026, Source: news.example.org");
    clock.Set({{2026, 11, 24}, 0, 0, 0, 0});
    screen.Tick();
    EXPECT_EQ(origin(), "out of date, Fetched on 20/11/2026, Source: news.example.org");
}

TEST_F(NewsScreen, OpensALinkOnlyAfterAQuestion) {
    struct {
        const char* link;
        bool agree;
        int questions;
        QStringList opened;
    } const rows[] = {
        {"https://example.org/a?b=c", false, 1, {}},
        {"https://example.org/a?b=c", true, 1, {"https://example.org/a?b=c"}},
        {"file:///etc/passwd", true, 0, {}},
        {"javascript:alert(1)", true, 0, {}},
        {"other.htm", true, 0, {}},
    };
    Put("<html><body>text</body></html>");
    for (const auto& row : rows) {
        opened.clear();
        boxes.shown.clear();
        boxes.answers = {row.agree ? BoxAnswer::kYes : BoxAnswer::kNo};
        emit view->anchorClicked(QUrl(row.link));
        EXPECT_EQ(static_cast<int>(boxes.shown.size()), row.questions) << row.link;
        EXPECT_EQ(opened, row.opened) << row.link;
        EXPECT_EQ(view->toPlainText(), "text") << row.link;
    }
}

TEST_F(NewsScreen, SquaresInTheCornerChangeTheSize) {
    Put("<html><body>text</body></html>");
    auto* bar = screen.findChild<QWidget*>("zoomBar");
    const auto tap = [&](int fromRight, int fromBottom) {
        QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() - fromRight, bar->height() - fromBottom});
        return view->ZoomLevel();
    };
    EXPECT_FALSE(view->geometry().intersects(bar->geometry())) << "no text lies under the squares";
    EXPECT_EQ(bar->geometry().bottomRight(), screen.rect().bottomRight());
    EXPECT_EQ(view->ZoomLevel(), 2);
    const int before = view->document()->defaultFont().pixelSize();
    EXPECT_EQ(tap(13, 13), 3);
    EXPECT_GT(view->document()->defaultFont().pixelSize(), before);

    EXPECT_EQ(tap(13, 13), 4);
    EXPECT_EQ(tap(13, 13), 4) << "the largest";
    EXPECT_EQ(tap(36, 13), 3);
    EXPECT_EQ(tap(36, 13), 2);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    QTest::keyClick(view, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view->ZoomLevel(), 3);
}

}  // namespace
}  // namespace rlx

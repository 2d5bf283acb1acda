#include "news/ui/news_screen.h"

#include <QSignalSpy>
#include <QTest>

#include "platform/fake/memory_registry.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/image/image_codec.h"
#include "shell/registry_store.h"
#include "shell/resources.h"
#include "shell/setting_names.h"
#include "support/memory_files.h"

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

    test::CMemoryFiles files;
    CImageCodec codec;
    CLook look{files, codec};
    CResources resources;
    CMemoryRegistry registry;
    CRegistryStore settings{registry};
    CScriptedMessageBoxes boxes;
    CNewsPage page{registry, files, resources, "/app"};
    QStringList opened;
    CNewsScreen screen{page, resources, boxes, look, [this](const QUrl& link) { opened << link.toString(); }};
    CNewsView* view = screen.findChild<CNewsView*>("newsView");
};

TEST_F(NewsScreen, SaysThatThereIsNoNews) {
    screen.Entered();
    EXPECT_EQ(view->toPlainText().trimmed(), "No news...");
}

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

TEST_F(NewsScreen, LoadsNothingButThePage) {
    // A picture beside the page and a style sheet: neither may be read, from wherever.
    QImage(8, 8, QImage::Format_RGB32).save(QDir::temp().filePath("rlx_news_picture.png"));
    const std::string picture = "file://" + QDir::temp().filePath("rlx_news_picture.png").toStdString();
    Put("<html><head><link rel=stylesheet href='file:///etc/passwd'></head><body><img src='" + picture +
        "'><script>x</script>text</body></html>");
    const QUrl name(QString::fromStdString(picture));
    const QVariant loaded = view->document()->resource(QTextDocument::ImageResource, name);
    EXPECT_TRUE(loaded.metaType() == QMetaType::fromType<QByteArray>() && loaded.toByteArray().isEmpty());
    EXPECT_TRUE(view->toPlainText().contains("text"));
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
    const auto tap = [this](int fromRight, int fromBottom) {
        const QWidget* area = view->viewport();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          {area->width() - fromRight, area->height() - fromBottom});
        return view->ZoomLevel();
    };
    EXPECT_EQ(view->ZoomLevel(), 2);
    const int before = view->document()->defaultFont().pixelSize();
    EXPECT_EQ(tap(13, 13), 3);
    EXPECT_GT(view->document()->defaultFont().pixelSize(), before);
    EXPECT_EQ(tap(3, 13), 3);  // on the border line
    EXPECT_EQ(tap(13, 3), 3);
    EXPECT_EQ(tap(36, 13), 2);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    QTest::keyClick(view, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view->ZoomLevel(), 3);
}

}  // namespace
}  // namespace rlx

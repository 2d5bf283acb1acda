#include "feeds/feed_parameters.h"

#include "feeds/feed_address.h"
#include "feeds/feed_world.h"
#include "feeds/http_url.h"
#include "platform/posix/posix_file_system.h"
#include "support/temp_folder.h"

namespace rlx::test {
namespace {

const FeedDevice kDevice{6, 1, u"x86_64", u"1.2", {240, 320}, {240, 294}};

void SetOwner(IRegistry& registry, const std::u16string& owner) {
    RegistryValue value{RegistryType::kString, {}};
    for (const char16_t unit : owner)
        value.bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    registry.Set(RegistryRoot::kCurrentUser, u"ControlPanel\\Owner", u"Owner", value);
}

TEST(FeedParameters, TheThreeStrings) {
    CMemoryRegistry registry;
    CRegistryStore settings(registry);
    SetOwner(registry, u"Ann O'Nym & Co");
    settings.WriteString(RegistryRoot::kLocalMachine, u"Roamlytix", u"newsid", u"n 42");
    settings.WriteString(RegistryRoot::kLocalMachine, u"Roamlytix", u"hlname", u"São Paulo");
    const CFeedParameters parameters(registry, kDevice);
    const std::u16string id = DeviceNumber(u"Ann O'Nym & Co", kDevice);
    const std::u16string head = u"did=Ann O'Nym & Co";
    const std::u16string device = u"&os=wince6.1&gid=" + id + u"&appver=1.2&home=";
    EXPECT_EQ(parameters.CurrencyParameters(u"Paris", {240, 268}),
              head + u"&jc=110" + device + u"Paris&scrsize=240x320&wasize=240x268");
    EXPECT_EQ(parameters.WeatherParameters(u"Xi'an", {240, 200}),
              head + u"&jc=111&c='Xi'an'" + device + u"São Paulo&scrsize=240x320&wasize=240x200&'0'");
    EXPECT_EQ(parameters.NewsParameters(),
              head + u"&jc=115&cnid=n 42" + device + u"São Paulo&scrsize=240x320&wasize=240x294&'0'");
}

TEST(FeedParameters, AnUnknownOwnerIsAskedForOnce) {
    CMemoryRegistry registry;
    int asked = 0;
    const CFeedParameters parameters(registry, kDevice, [&] {
        if (++asked == 2) SetOwner(registry, std::u16string(400, u'x'));
    });
    EXPECT_TRUE(parameters.NewsParameters().starts_with(u"did=&jc=115&cnid=&os=wince6.1&gid="));
    EXPECT_TRUE(parameters.NewsParameters().starts_with(u"did=" + std::u16string(383, u'x') + u"&jc=115"));
    parameters.NewsParameters();
    EXPECT_EQ(asked, 2);
}

TEST(FeedParameters, TheDeviceNumberFollowsOwnerSystemAndProcessor) {
    FeedDevice other = kDevice;
    other.screen = {1, 1};
    other.appVersion = u"9";
    EXPECT_EQ(DeviceNumber(u"a", kDevice), DeviceNumber(u"a", other));
    EXPECT_NE(DeviceNumber(u"a", kDevice), DeviceNumber(u"b", kDevice));
    other.osMinor = 2;
    EXPECT_NE(DeviceNumber(u"a", kDevice), DeviceNumber(u"a", other));
    EXPECT_EQ(DeviceNumber(u"a", kDevice).find_first_not_of(u"0123456789"), std::u16string::npos);
}

TEST(FeedAddress, EndsAtTheStar) {
    CTempFolder folder;
    CPosixFileSystem files;
    EXPECT_EQ(FeedServerAddress(files, folder.Path()), u"");
    const struct {
        std::string bytes;
        std::u16string address;
    } rows[] = {
        {"http://a/*rest*", u"http://a/"},
        {"http://\xE9/*", u"http://\u00E9/"},
        {std::string(511, 'a') + "*", std::u16string(511, u'a')},
        {std::string(512, 'a') + "*", u""},
        {"", u""},
    };
    for (const auto& row : rows) {
        files.WriteFile(folder.Path() / "adrs.cfg", row.bytes);
        EXPECT_EQ(FeedServerAddress(files, folder.Path()), row.address) << row.bytes;
    }
}

TEST(HttpUrl, TakesAddressesApart) {
    const struct {
        const char16_t* text;
        HttpUrl url;
    } rows[] = {
        {u"http://a", {"a", 80, "/"}},           {u"HTTP://A.example:8765/feed?x#y", {"A.example", 8765, "/feed?x"}},
        {u" http://a/b\r", {"a", 80, "/b"}},     {u"http://a?q", {"a", 80, "/?q"}},
        {u"http://[::1]:81/", {"::1", 81, "/"}}, {u"http://a/\u00E9\r\nX: y", {"a", 80, "/%E9%0D%0AX:%20y"}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ParseHttpUrl(row.text), row.url) << ToUtf8(row.text);
    for (const char16_t* bad :
         {u"", u"http:/a", u"http://", u"http://?q", u"http://a:x/", u"http://a:65536/", u"http://me@a/",
          u"http://[::1", u"http://[a]/", u"http://[::1]x/", u"http://a\u0416/", u"http://a\r\nb/", u"ftp://a/"})
        EXPECT_FALSE(ParseHttpUrl(bad)) << ToUtf8(bad);
    EXPECT_FALSE(ParseHttpUrl(u"http://" + std::u16string(256, u'a')));
}

}  // namespace
}  // namespace rlx::test

#include "clocks/user_timer.h"

#include "platform/fake/memory_file_system.h"

namespace rlx {
namespace {

class CFakeServices : public IUserServices {
public:
    bool IsThere() override { return there; }
    bool Order(const std::vector<std::string>& words) override {
        orders.emplace_back();
        for (const std::string& word : words)
            orders.back() += word + " ";
        return obeys;
    }

    bool there = true;
    bool obeys = true;
    std::vector<std::string> orders;
};

class UserTimer : public ::testing::Test {
protected:
    CUserTimer Timer() { return {files, services, {"/units", {"/opt/a b/roamlytix", "--remind"}, "100% \xC3\xBC"}}; }

    const DateTime first{{2026, 11, 23}, 8, 0, 0, 0};
    const DateTime second{{2026, 12, 1}, 23, 5, 7, 0};
    CMemoryFileSystem files;
    CFakeServices services;
};

TEST_F(UserTimer, WritesUnitsThatSayWhatWasMeant) {
    EXPECT_TRUE(Timer().Arm({first, second}));
    EXPECT_EQ(files.files["/units/roamlytix-reminder.timer"],
              "[Unit]\nDescription=100%% \xC3\xBC\n\n[Timer]\nOnCalendar=2026-11-23 08:00:00 UTC\n"
              "OnCalendar=2026-12-01 23:05:07 UTC\nAccuracySec=1s\nPersistent=true\n\n"
              "[Install]\nWantedBy=timers.target\n");
    EXPECT_EQ(ServiceUnitText({"/a \"b\"\\$HOME%h", "x\ny"}, "d"),
              "[Unit]\nDescription=d\n\n[Service]\nType=oneshot\n"
              "ExecStart=\"/a \\\"b\\\"\\\\$$HOME%%h\" \"x\\ny\"\n");
}

TEST_F(UserTimer, FollowsTheRemindersAndGoesWithTheLast) {
    CUserTimer timer = Timer();
    EXPECT_TRUE(timer.Arm({first}));
    EXPECT_TRUE(timer.Arm({first}));
    EXPECT_TRUE(Timer().Arm({first})) << "the next run";
    const std::vector<std::string> armed{"daemon-reload ", "enable roamlytix-reminder.timer ",
                                         "restart roamlytix-reminder.timer "};
    EXPECT_EQ(services.orders, armed);
    services.orders.clear();
    EXPECT_TRUE(timer.Arm({}));
    EXPECT_TRUE(files.files.empty());
    EXPECT_EQ(services.orders, (std::vector<std::string>{"disable --now roamlytix-reminder.timer ", "daemon-reload "}));
}

TEST_F(UserTimer, LeavesNothingThatLooksArmedWhenItIsNot) {
    services.obeys = false;
    EXPECT_FALSE(Timer().Arm({first}));
    services.obeys = true;
    services.orders.clear();
    EXPECT_TRUE(Timer().Arm({first}));
    EXPECT_EQ(services.orders.size(), 3U) << "the next run tries again";
    EXPECT_TRUE(Timer().IsOurs());
    EXPECT_FALSE(CUserTimer(files, services, {"/units", {"/opt/other", "--remind"}, "100% \xC3\xBC"}).IsOurs());
    services.there = false;
    EXPECT_FALSE(Timer().Arm({first, second}));
}

}  // namespace
}  // namespace rlx

#include "shell/registry_store.h"

#include <limits>

#include "platform/fake/failing_registry.h"
#include "platform/fake/memory_registry.h"
#include "shell/clock_settings.h"
#include "shell/setting_names.h"

namespace rlx {
namespace {

constexpr RegistryRoot kMachine = RegistryRoot::kLocalMachine;
constexpr std::u16string_view kKey = keys::kRoamlytix;

class RegistryStore : public testing::Test {
protected:
    void Put(std::u16string_view name, RegistryType type, std::string bytes) {
        m_memory.Set(kMachine, kKey, name, {type, std::move(bytes)});
    }
    std::vector<std::u16string> Names(std::u16string_view key) { return m_memory.ValueNames(kMachine, key); }

    CMemoryRegistry m_memory;
    CFailurePlan m_plan;
    CFailingRegistry m_failing{m_memory, m_plan};
    CRegistryStore m_store{m_failing};
};

TEST_F(RegistryStore, NumbersAreFourBytesLittleEndian) {
    for (const std::uint32_t value : {0U, 1U, 0x12345678U, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_TRUE(m_store.WriteDword(kMachine, kKey, u"n", value));
        EXPECT_EQ(m_store.ReadDword(kMachine, kKey, u"n"), value);
        EXPECT_EQ(m_store.Status(), ReadStatus::kRead);
    }
    m_store.WriteDword(kMachine, kKey, u"n", 0x12345678U);
    EXPECT_EQ(m_memory.Query(kMachine, kKey, u"n"), (RegistryValue{RegistryType::kDword, "\x78\x56\x34\x12"}));
}

TEST_F(RegistryStore, WhatIsNoNumberCountsAsMissing) {
    EXPECT_EQ(m_store.ReadDword(kMachine, kKey, u"n"), 0U);
    EXPECT_EQ(m_store.Status(), ReadStatus::kKeyMissing);
    const struct {
        const char* what;
        RegistryType type;
        std::string bytes;
    } rows[] = {{"text", RegistryType::kString, std::string("1\0", 2)},
                {"binary", RegistryType::kBinary, "abcd"},
                {"short", RegistryType::kDword, "abc"},
                {"long", RegistryType::kDword, "abcde"},
                {"empty", RegistryType::kDword, ""}};
    for (const auto& row : rows) {
        Put(u"n", row.type, row.bytes);
        EXPECT_EQ(m_store.ReadDword(kMachine, kKey, u"n"), 0U) << row.what;
        EXPECT_EQ(m_store.Status(), ReadStatus::kValueMissing) << row.what;
    }
    EXPECT_EQ(m_store.ReadDword(kMachine, kKey, u"other"), 0U);
    EXPECT_EQ(m_store.Status(), ReadStatus::kValueMissing);
    EXPECT_EQ(m_store.ReadDword(RegistryRoot::kCurrentUser, kKey, u"n"), 0U);
    EXPECT_EQ(m_store.Status(), ReadStatus::kKeyMissing);
}

TEST_F(RegistryStore, TextsHaveNoTerminator) {
    EXPECT_EQ(m_store.ReadString(kMachine, kKey, u"t"), u"");
    EXPECT_EQ(m_store.Status(), ReadStatus::kKeyMissing);
    const std::u16string texts[] = {u"", u"default", u"\u6771\U0001F600", std::u16string(1, char16_t{0xDC00}),
                                    std::u16string(5000, u'x')};
    for (const auto& text : texts) {
        EXPECT_TRUE(m_store.WriteString(kMachine, kKey, u"t", text));
        EXPECT_EQ(m_memory.Query(kMachine, kKey, u"t")->bytes.size(), 2 * text.size());
        EXPECT_EQ(m_store.ReadString(kMachine, kKey, u"t"), text);
        EXPECT_EQ(m_store.Status(), ReadStatus::kRead);
    }
    m_store.WriteString(kMachine, kKey, u"t", u"\u0141");
    EXPECT_EQ(m_memory.Query(kMachine, kKey, u"t")->bytes, "\x41\x01");
    Put(u"t", RegistryType::kString, std::string("a\0b\0c", 5));
    EXPECT_EQ(m_store.ReadString(kMachine, kKey, u"t"), u"ab") << "half a character";
    Put(u"t", RegistryType::kBinary, std::string("a\0", 2));
    EXPECT_EQ(m_store.ReadString(kMachine, kKey, u"t"), u"");
    EXPECT_EQ(m_store.Status(), ReadStatus::kValueMissing);
    EXPECT_TRUE(m_store.WriteBinary(kMachine, kKey, u"b", "\0\xFF", 2));
    EXPECT_EQ(m_memory.Query(kMachine, kKey, u"b"), (RegistryValue{RegistryType::kBinary, std::string("\0\xFF", 2)}));
}

TEST_F(RegistryStore, ADefaultIsWrittenOnlyWhenTheKeyIsMissing) {
    EXPECT_EQ(m_store.ReadDwordOr(keys::kMap, names::kMapClock, 3), 3U);
    EXPECT_EQ(m_store.ReadDword(kMachine, keys::kMap, names::kMapClock), 3U) << "written at once";
    EXPECT_EQ(m_store.ReadDwordOr(keys::kMap, names::kShowCities, 1), 1U);
    EXPECT_EQ(Names(keys::kMap), std::vector<std::u16string>{u"mapclock"}) << "the key was there";
    m_store.WriteDword(kMachine, keys::kMap, names::kShowCities, 0);
    EXPECT_EQ(m_store.ReadDwordOr(keys::kMap, names::kShowCities, 1), 0U) << "a stored 0 is not missing";
    EXPECT_EQ(m_store.ReadDwordOr(keys::kRoamlytix, names::kLanguage, 5), 5U);
    EXPECT_TRUE(Names(keys::kRoamlytix).empty()) << "the key came into being with the one below it";
    m_store.ReadDwordOr(keys::kOwner, u"x", 1);
    EXPECT_TRUE(m_memory.KeyExists(RegistryRoot::kCurrentUser, keys::kOwner));
}

TEST_F(RegistryStore, AFailingDeviceGivesDefaultsAndLosesNothing) {
    m_plan.FailAll();
    EXPECT_FALSE(m_store.WriteDword(kMachine, kKey, u"n", 1));
    EXPECT_FALSE(m_store.WriteString(kMachine, kKey, u"t", u"x"));
    EXPECT_EQ(LoadClockSettings(m_store), (ClockSettings{0, {684, 756, 565, 988}, 0}));
    m_plan.FailAt(0);
    m_store.WriteDword(kMachine, keys::kWorldClock, names::kHomeClock, 77);
    m_store.WriteDword(kMachine, keys::kRoamlytix, names::kTwelveHour, 1);
    m_failing.FailReads(true);
    EXPECT_EQ(LoadClockSettings(m_store).home, 0U);
    EXPECT_EQ(m_store.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0), 0U);
    m_failing.FailReads(false);
    EXPECT_EQ(LoadClockSettings(m_store).home, 77U) << "no default was written over it";
    EXPECT_EQ(m_store.ReadDwordOr(keys::kRoamlytix, names::kTwelveHour, 0), 1U);
}

}  // namespace
}  // namespace rlx

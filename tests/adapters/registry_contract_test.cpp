#include "platform/fake/fixed_clock.h"
#include "platform/fake/memory_registry.h"
#include "platform/sqlite/device_store.h"
#include "support/temp_folder.h"

namespace rlx {
namespace {

constexpr RegistryRoot kMachine = RegistryRoot::kLocalMachine;
constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;

RegistryValue Bytes(std::string bytes) {
    return {RegistryType::kBinary, std::move(bytes)};
}

/// What every registry must do, whatever it keeps its values in.
class RegistryContract : public testing::TestWithParam<const char*> {
protected:
    RegistryContract() {
        if (std::string_view(GetParam()) == "sqlite") m_store = OpenDeviceStore(m_folder / "device.db", m_clock).store;
    }
    IRegistry& Registry() { return m_store ? m_store->Registry() : m_memory; }

private:
    test::CTempFolder m_folder;
    CFixedClock m_clock;
    CMemoryRegistry m_memory;
    std::unique_ptr<CDeviceStore> m_store;
};

TEST_P(RegistryContract, KeysComeIntoBeingWithTheirParents) {
    IRegistry& registry = Registry();
    EXPECT_TRUE(registry.KeyExists(kMachine, u""));
    EXPECT_FALSE(registry.KeyExists(kMachine, u"A"));
    EXPECT_TRUE(registry.Set(kMachine, u"A\\B\\C", u"v", Bytes("x")));
    for (const char16_t* key : {u"A", u"A\\B", u"A\\B\\C"})
        EXPECT_TRUE(registry.KeyExists(kMachine, key));
    for (const char16_t* key : {u"a", u"B", u"A\\", u"A\\B\\C\\D"})
        EXPECT_FALSE(registry.KeyExists(kMachine, key));
    EXPECT_FALSE(registry.KeyExists(kUser, u"A")) << "the roots are apart";
    EXPECT_FALSE(registry.Set(kMachine, std::u16string(IRegistry::kMaxKeyLength + 1, u'k'), u"v", Bytes("x")));
    EXPECT_TRUE(registry.Set(kMachine, std::u16string(IRegistry::kMaxKeyLength, u'\\'), u"v", Bytes("x")));
}

TEST_P(RegistryContract, AnyBytesUnderAnyNameComeBack) {
    const std::u16string odd[] = {u"", u"plain", std::u16string(u"a\0\xD800", 3), std::u16string(3000, u'n')};
    const RegistryValue values[] = {
        Bytes(""), Bytes(std::string("\0\xFF\0", 3)), {RegistryType::kDword, std::string(4, '\xFF')}};
    IRegistry& registry = Registry();
    for (const auto& name : odd) {
        for (const auto& value : values) {
            ASSERT_TRUE(registry.Set(kUser, u"K", name, value));
            EXPECT_EQ(registry.Query(kUser, u"K", name), value);
        }
    }
    EXPECT_EQ(registry.ValueNames(kUser, u"K"), std::vector<std::u16string>(std::begin(odd), std::end(odd)));
    EXPECT_FALSE(registry.Query(kUser, u"K", u"Plain"));
    EXPECT_FALSE(registry.Query(kMachine, u"K", u"plain"));
}

TEST_P(RegistryContract, ExchangeIsAllOrNothing) {
    IRegistry& registry = Registry();
    registry.Set(kMachine, u"K", u"old", Bytes("1"));
    const RegistryAssignment changes[] = {{u"new", Bytes("2")}, {u"old", std::nullopt}};
    const RegistryAssignment wrong[] = {{u"new", std::nullopt}, {u"old", Bytes("0")}};
    const RegistryAssignment right[] = {{u"new", std::nullopt}, {u"old", Bytes("1")}};
    EXPECT_FALSE(registry.Exchange(kMachine, u"K", wrong, changes));
    EXPECT_EQ(registry.Query(kMachine, u"K", u"old"), Bytes("1"));
    EXPECT_FALSE(registry.Query(kMachine, u"K", u"new"));
    EXPECT_TRUE(registry.Exchange(kMachine, u"K", right, changes));
    EXPECT_FALSE(registry.Query(kMachine, u"K", u"old"));
    EXPECT_EQ(registry.Query(kMachine, u"K", u"new"), Bytes("2"));
    EXPECT_FALSE(registry.Exchange(kMachine, u"K", right, changes)) << "once";
    EXPECT_TRUE(registry.Exchange(kUser, u"A\\B", {}, changes));
    EXPECT_EQ(registry.Query(kUser, u"A\\B", u"new"), Bytes("2"));
}

TEST_P(RegistryContract, NamesKeepTheOrderOfTheirFirstWriting) {
    IRegistry& registry = Registry();
    for (const char16_t* name : {u"z", u"a", u"m", u"z", u"a"})
        registry.Set(kMachine, u"K", name, Bytes("1"));
    EXPECT_EQ(registry.ValueNames(kMachine, u"K"), (std::vector<std::u16string>{u"z", u"a", u"m"}));
    EXPECT_TRUE(registry.Remove(kMachine, u"K", u"z"));
    EXPECT_TRUE(registry.Remove(kMachine, u"K", u"z"));
    EXPECT_TRUE(registry.Remove(kMachine, u"No", u"z"));
    EXPECT_FALSE(registry.Query(kMachine, u"K", u"z"));
    registry.Set(kMachine, u"K", u"z", Bytes("2"));
    EXPECT_EQ(registry.ValueNames(kMachine, u"K"), (std::vector<std::u16string>{u"a", u"m", u"z"}));
    EXPECT_FALSE(registry.KeyExists(kMachine, u"No"));
}

TEST_P(RegistryContract, TheListIsOrderedByRootKeyAndName) {
    IRegistry& registry = Registry();
    registry.Set(kUser, u"A", u"v", Bytes("5"));
    registry.Set(kMachine, u"K\\\uE000", u"v", Bytes("4"));
    registry.Set(kMachine, u"K\\\U00010000", u"v", Bytes("3"));  // units D800 DC00 sort before E000
    registry.Set(kMachine, u"K", u"b", Bytes("2"));
    registry.Set(kMachine, u"K", u"a", Bytes("1"));
    std::string seen;
    for (const RegistryEntry& entry : registry.List())
        seen += entry.value.bytes;
    EXPECT_EQ(seen, "12345");
}

INSTANTIATE_TEST_SUITE_P(, RegistryContract, testing::Values("sqlite", "memory"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace rlx

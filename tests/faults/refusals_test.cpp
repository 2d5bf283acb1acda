// Each write of each change is refused once, and then every write from each one on.
#include <fstream>
#include <iterator>

#include "faults/device.h"
#include "platform/fake/failing_object_store.h"
#include "platform/fake/failing_registry.h"
#include "platform/fake/memory_file_system.h"
#include "platform/sqlite/device_store.h"
#include "support/paths.h"

namespace rlx::test {
namespace {

/// A device whose files lie in memory and which refuses writes as `plan` says.
struct RefusingDevice {
    RefusingDevice() {
        for (const char* name : {"currs.lst", "default.skn"})
            files.files[root / name] = BytesOf(std::string(kDataDir) + "/" + name);
        files.files[root / "Module.dll"] = BytesOf(std::string(kTestModuleDir) + "/RoamlyPseudo.dll");
        files.files[root / "cities.lst"] =
            "5\nZ;A;L;1;2;3;0;0;0;0;0\nZ;B;L;1;2;3;0;0;0;0;0\nZ;C;L;1;2;3;0;0;0;0;0\nZ;D;L;1;2;3;0;0;0;0;0\n"
            "Z;E;L;1;2;3;0;0;0;0;0\n";
        CDevice(Ports()).Prepare();
    }
    DevicePorts Ports() { return {files, registry, objects, clock, root}; }

    static std::string BytesOf(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const std::filesystem::path root = "/home";
    CFixedClock clock{{DayOf(0), 12}};
    CFailurePlan plan;
    std::unique_ptr<CDeviceStore> store = OpenDeviceStoreInMemory(clock);
    CMemoryFileSystem files{plan};
    CFailingRegistry registry{store->Registry(), plan};
    CFailingObjectStore objects{store->Objects(), plan};
};

/// How many writes a change makes. What is said to have failed is as it was, what is said to be done is there. Where
/// the device refuses the way back as well, the next start may end the change.
int RefuseEachWrite(const Kind& kind, int count) {
    RefusingDevice device;
    for (int write = 1;; ++write) {
        SCOPED_TRACE(write);
        CDevice changed(device.Ports());
        const std::uint32_t before = (changed.*kind.read)();
        const int seen = device.plan.Seen();
        device.plan.FailAt(write, count);
        const bool done = (changed.*kind.change)(before + 1);
        const bool refused = device.plan.Seen() - seen >= write;
        device.plan.FailAt(0);
        CDevice opened(device.Ports());
        const std::uint32_t after = (opened.*kind.read)();
        if (done || count == 1)
            EXPECT_EQ(after, done ? before + 1 : before);
        else
            EXPECT_TRUE(after == before || after == before + 1) << after;
        EXPECT_TRUE(done || refused);
        if (!refused || testing::Test::HasFailure()) return write - 1;
    }
}

TEST(Refusals, EachWriteOfEachChangeCanFail) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        EXPECT_GT(RefuseEachWrite(kind, 1), 0);
        RefuseEachWrite(kind, 1 << 20);
    }
}

}  // namespace
}  // namespace rlx::test

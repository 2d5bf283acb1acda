// Changes everything that a person's device keeps, over and over, until somebody kills it:
//   fault_changer FOLDER change    a line "KIND NUMBER" once a change has been said to be kept
//   fault_changer FOLDER once      one round of changes
//   fault_changer FOLDER check     a line "KIND NUMBER" for what is there; status 1 and what is wrong for a fault
// FOLDER holds the data files and "Module.dll", and gets "device.db".
#include <unistd.h>

#include <cstdio>
#include <exception>

#include "faults/device.h"
#include "platform/posix/posix_file_system.h"
#include "platform/sqlite/device_store.h"

namespace rlx::test {
namespace {

void Say(const char* kind, std::uint32_t number) {
    const std::string line = std::string(kind) + " " + std::to_string(number) + "\n";
    Must(::write(STDOUT_FILENO, line.data(), line.size()) == static_cast<ssize_t>(line.size()), "standard output");
}

void Run(const std::filesystem::path& root, const std::string& what) {
    CFixedClock clock({DayOf(0), 12});
    CPosixFileSystem files;
    const OpenedStore opened = OpenDeviceStore(root / "device.db", clock);
    Must(opened.outcome == StoreOutcome::kOpened || opened.outcome == StoreOutcome::kCreated, "the store");
    Must(what != "check" || opened.store->IsSound(), "the store is damaged");
    CDevice device({files, opened.store->Registry(), opened.store->Objects(), clock, root});
    device.Prepare();
    std::map<std::string, std::uint32_t> numbers;
    for (const Kind& kind : kKinds) {
        numbers[kind.name] = (device.*kind.read)();
        if (what == "check") Say(kind.name, numbers[kind.name]);
    }
    if (what == "check") return;
    do {
        for (const Kind& kind : kKinds) {
            const std::uint32_t next = ++numbers[kind.name];
            Must((device.*kind.change)(next), kind.name);
            Say(kind.name, next);
        }
    } while (what == "change");
}

}  // namespace
}  // namespace rlx::test

int main(int count, char** words) {
    if (count < 3) return 2;
    try {
        rlx::test::Run(words[1], words[2]);
        return 0;
    } catch (const std::exception& error) {
        std::printf("fault: %s\n", error.what());
        return 1;
    }
}

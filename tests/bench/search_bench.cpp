#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/number.h"
#include "places/city_search.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/posix/posix_file_system.h"
#include "platform/sqlite/device_store.h"
#include "shell/resources.h"

namespace rlx {
namespace {

/// A device store in a temporary file with this many cities.
class CManyCities {
public:
    explicit CManyCities(int count)
        : m_folder(MakeFolder()), m_store(OpenDeviceStore(m_folder / "d.db", m_clock).store) {
        std::string list = std::to_string(count) + "\n";
        for (int i = 0; i < count; ++i)
            list += "Europe/Paris;Ville-sur-Arc " + std::to_string(i * 7919 % count) +
                    ";C\xF4te;2.35;48.85;1;1;88;2;298;3\n";
        m_files.WriteFile(m_folder / "cities.lst", list);
        Cities().EnsureCreated();
    }
    ~CManyCities() {
        m_store.reset();
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }
    CManyCities(const CManyCities&) = delete;
    CManyCities& operator=(const CManyCities&) = delete;

    CCityDatabase Cities() {
        return CCityDatabase(m_store->Objects(), m_files, m_boxes, m_texts, m_folder / "cities.lst");
    }

private:
    static std::filesystem::path MakeFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "rlx-bench-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) std::abort();
        return name;
    }

    std::filesystem::path m_folder;
    CFixedClock m_clock;
    CPosixFileSystem m_files;
    CScriptedMessageBoxes m_boxes;
    const CResources m_texts;
    std::unique_ptr<CDeviceStore> m_store;
};

/// What a person waits for after the first key: the cities are read and searched.
void FirstFind(benchmark::State& state) {
    CManyCities device(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        CCityDatabase cities = device.Cities();
        CCitySearch search(cities);
        benchmark::DoNotOptimize(search.Find(u"arc 77"));
    }
}
BENCHMARK(FirstFind)->Arg(1200)->Arg(150000)->Unit(benchmark::kMillisecond);

void NextFind(benchmark::State& state) {
    CManyCities device(static_cast<int>(state.range(0)));
    CCityDatabase cities = device.Cities();
    CCitySearch search(cities);
    search.Find(u"a");
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(search.Find(u"arc 77"));
}
BENCHMARK(NextFind)->Arg(1200)->Arg(150000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace rlx

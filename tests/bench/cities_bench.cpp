// The cities in the device store beside SQLite by itself: the same rows, already read, in one transaction of a file
// with the same settings. "Floor" is the insert alone, "four indexes" has one made for each column afterwards.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>

#include "bench/many_cities.h"
#include "places/city_file.h"

namespace rlx {
namespace {

constexpr std::size_t kPrime = 7919;  // steps through the cities in no order

int CountOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

/// Seconds that `work` takes.
template <typename Work>
double Seconds(const Work& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// A database without any code of ours.
class CPlainDatabase {
public:
    explicit CPlainDatabase(CManyCities& device) {
        const auto file = device.Folder() / "plain.db";
        for (const char* suffix : {"", "-wal", "-shm"})
            std::filesystem::remove(file.string() + suffix);
        sqlite3_open(file.c_str(), &m_database);
        Run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
            "CREATE TABLE city(id INTEGER PRIMARY KEY, place TEXT, position TEXT, gmt TEXT, rule TEXT)");
    }
    ~CPlainDatabase() { sqlite3_close(m_database); }
    CPlainDatabase(const CPlainDatabase&) = delete;
    CPlainDatabase& operator=(const CPlainDatabase&) = delete;

    void Run(const char* sql) { sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr); }

    sqlite3_stmt* Prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr);
        return statement;
    }

    void Fill(const std::vector<CityLine>& lines, bool indexes) {
        Run("BEGIN");
        sqlite3_stmt* insert = Prepare("INSERT INTO city(place, position, gmt, rule) VALUES(?, ?, ?, ?)");
        for (const CityLine& line : lines) {
            int parameter = 0;
            for (const std::u16string* text : {&line.place, &line.position, &line.gmt, &line.dstRule})
                sqlite3_bind_text16(insert, ++parameter, text->data(), static_cast<int>(2 * text->size()),
                                    SQLITE_STATIC);
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        if (indexes)
            Run("CREATE INDEX a ON city(place); CREATE INDEX b ON city(position);"
                "CREATE INDEX c ON city(gmt); CREATE INDEX d ON city(rule)");
        Run("COMMIT");
    }

private:
    sqlite3* m_database = nullptr;
};

std::vector<CityLine> LinesOf(CManyCities& device) {
    std::vector<CityLine> lines;
    const auto file = device.Files().OpenRead(device.CityFile());
    ReadCityFile(*file, [&lines](const CityLine& line) {
        lines.push_back(line);
        return true;
    });
    return lines;
}

/// The whole of it: the list is read, the rows are made and written to the disk.
void BuildCities(benchmark::State& state) {
    CManyCities device(CountOf(state));
    for ([[maybe_unused]] auto _ : state) {
        device.OpenStore();
        CCityDatabase cities = device.Cities();
        state.SetIterationTime(Seconds([&] { cities.EnsureCreated(); }));
    }
}

void ReadCityList(benchmark::State& state) {
    CManyCities device(CountOf(state));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(LinesOf(device));
}

void PlainBuild(benchmark::State& state, bool indexes) {
    CManyCities device(CountOf(state));
    const auto lines = LinesOf(device);
    for ([[maybe_unused]] auto _ : state) {
        CPlainDatabase plain(device);
        state.SetIterationTime(Seconds([&] { plain.Fill(lines, indexes); }));
    }
}

/// The first question for a city of a handle that was just opened.
void FirstCity(benchmark::State& state) {
    CManyCities device(CountOf(state));
    device.Cities().EnsureCreated();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(device.Cities().Record(5));
}

void CityByIndex(benchmark::State& state) {
    CManyCities device(CountOf(state));
    CCityDatabase cities = device.Cities();
    cities.EnsureCreated();
    cities.Record(0);  // makes the index
    std::size_t at = 0;
    const auto count = static_cast<std::size_t>(CountOf(state));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(cities.GetPlace(static_cast<CityIndex>(at = (at + kPrime) % count)));
}

void SeekPosition(benchmark::State& state) {
    CManyCities device(CountOf(state));
    device.Cities().EnsureCreated();
    const auto database = device.Objects().Open(kCitiesDatabase);
    database->SeekPosition(PROP_PLACE, 0);
    std::size_t at = 0;
    const auto count = static_cast<std::size_t>(CountOf(state));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(database->SeekPosition(PROP_PLACE, at = (at + kPrime) % count));
}

/// The floor of a lookup: the number of the record is known. By offset: what SQLite alone makes of a position.
void PlainCity(benchmark::State& state, const char* sql) {
    CManyCities device(CountOf(state));
    CPlainDatabase plain(device);
    plain.Fill(LinesOf(device), true);
    sqlite3_stmt* statement = plain.Prepare(sql);
    std::size_t at = 0;
    const auto count = static_cast<std::size_t>(CountOf(state));
    for ([[maybe_unused]] auto _ : state) {
        sqlite3_bind_int64(statement, 1, static_cast<sqlite3_int64>(at = (at + kPrime) % count));
        sqlite3_step(statement);
        benchmark::DoNotOptimize(sqlite3_column_text16(statement, 0));
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(1200)->Arg(150000);
}

BENCHMARK(BuildCities)->Apply(Sizes)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(ReadCityList)->Apply(Sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlainBuild, floor, false)->Apply(Sizes)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(PlainBuild, four_indexes, true)->Apply(Sizes)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(FirstCity)->Apply(Sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK(CityByIndex)->Apply(Sizes)->Unit(benchmark::kNanosecond);
BENCHMARK(SeekPosition)->Apply(Sizes)->Unit(benchmark::kNanosecond);
BENCHMARK_CAPTURE(PlainCity, floor, "SELECT place FROM city WHERE id = ?")->Apply(Sizes);
BENCHMARK_CAPTURE(PlainCity, by_offset, "SELECT place FROM city ORDER BY place LIMIT 1 OFFSET ?")->Apply(Sizes);

}  // namespace
}  // namespace rlx

#include <curl/curl.h>
#include <signal.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <mutex>

#include "feedserver/http_listener.h"
#include "feedserver/refresher.h"
#include "feedserver/server_config.h"
#include "feedserver/source_reader.h"
#include "feedserver/weather_source.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"

namespace rlx {
namespace {

constexpr int kFirstGivenSocket = 3;
constexpr std::size_t kMaxConfigBytes = 1 << 20;

struct Arguments {
    std::string listen = "127.0.0.1:8765";
    std::string data;
    std::string config;
    unsigned perAddress = ListenerLimits{}.connectionsOfOne;
    bool check = false;
};

void LogLine(const std::string& line) {
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::cerr << line << '\n' << std::flush;
}

int Fail(const std::string& why) {
    LogLine("roamlytix-feedd: " + why);
    return 1;
}

/// True when the service manager opened our socket and hands it over.
bool HasGivenSocket() {
    const char* pid = std::getenv("LISTEN_PID");
    const char* count = std::getenv("LISTEN_FDS");
    return pid != nullptr && count != nullptr && std::to_string(getpid()) == pid && std::string_view(count) == "1";
}

/// Beside the program, else where an installation keeps the data of all three programs.
std::filesystem::path OwnFolder() {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return ".";
    const std::filesystem::path beside = self.parent_path();
    const std::filesystem::path installed = beside.parent_path() / "share" / "roamlytix";
    return !std::filesystem::exists(beside / "cities.lst", error) && std::filesystem::is_directory(installed, error)
               ? installed
               : beside;
}

/// Refreshes until somebody asks the program to end.
void RefreshUntilSignal(CRefresher& refresher, const IClock& clock, std::chrono::minutes every,
                        const sigset_t& signals) {
    const timespec interval{std::chrono::duration_cast<std::chrono::seconds>(every).count(), 0};
    do {
        refresher.Refresh(clock.Now().date);
    } while (sigtimedwait(&signals, nullptr, &interval) < 0);
}

/// Fetches forecasts; each call has its own adapter, since they come from several threads.
SourceBytes ReadWeather(const std::string& from, const std::atomic<bool>& stop) {
    const FetchPatience patience{6, 20, &stop};
    CPosixFileSystem files;
    return ReadSourceBytes(files, from, "json", patience);
}

std::int64_t SecondsNow() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(sinceEpoch).count();
}

int Run(const Arguments& arguments, const ServerConfig& config, const ListenAddress& address) {
    // Blocked before any thread starts, so that only the wait below sees them.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    curl_global_init(CURL_GLOBAL_DEFAULT);

    CPosixFileSystem files;
    const CSystemClock clock;
    CKnowledgeBoard board;
    const std::filesystem::path data = arguments.data.empty() ? OwnFolder() : std::filesystem::path(arguments.data);
    CRefresher refresher(files, board, config, data, LogLine);
    refresher.Begin();
    CPosixFileSystem weatherFiles;
    CWeatherSource weather(weatherFiles, LoadForecastCities(files, data), config.weather, config.keep, ReadWeather,
                           SecondsNow, LogLine);
    if (arguments.check) {
        const bool facts = refresher.Refresh(clock.Now().date);
        return weather.Check() && facts ? 0 : Fail("not every source can be used");
    }
    weather.Begin();

    ListenerLimits limits;
    limits.connectionsOfOne = arguments.perAddress;
    CHttpListener listener(board, limits, LogLine, &weather);
    const std::string fault = HasGivenSocket() ? listener.Serve(kFirstGivenSocket) : listener.Listen(address);
    if (!fault.empty()) return Fail(fault);
    LogLine("listening on port " + std::to_string(listener.Port()));
    RefreshUntilSignal(refresher, clock, config.every, signals);
    return 0;
}

int Main(int count, char** values) {
    Arguments arguments;
    CLI::App app("The feed server of Roamlytix: exchange rates, weather and news over HTTP.", "roamlytix-feedd");
    app.add_option("--listen", arguments.listen, "address and port")->capture_default_str();
    app.add_option("--data", arguments.data,
                   "folder with currs.lst, currs.date, cities.wet, cities.lst and news/ (else the program's own)");
    app.add_option("--config", arguments.config, "JSON file that names the sources");
    app.add_option("--per-address", arguments.perAddress, "connections from one address; more behind a load balancer")
        ->check(CLI::Range(1U, ListenerLimits{}.connections))
        ->capture_default_str();
    app.add_flag("--check", arguments.check, "try configuration and sources, then exit");
    try {
        app.parse(count, values);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    const std::optional<ListenAddress> address = ParseListenAddress(arguments.listen);
    if (!address) return Fail("--listen " + arguments.listen + ": an address and a port are expected"), 2;
    ServerConfig config;
    if (!arguments.config.empty()) {
        const std::optional<std::string> bytes = CPosixFileSystem().ReadFile(arguments.config, kMaxConfigBytes);
        if (!bytes) return Fail(arguments.config + " cannot be read"), 2;
        ParsedConfig parsed = ParseServerConfig(*bytes);
        if (!parsed.config) return Fail(arguments.config + ": " + parsed.fault), 2;
        config = std::move(*parsed.config);
    }
    return Run(arguments, config, *address);
}

}  // namespace
}  // namespace rlx

int main(int count, char** values) {
    try {
        return rlx::Main(count, values);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "roamlytix-feedd: %s\n", error.what());
    } catch (...) {
        std::fputs("roamlytix-feedd: unknown failure\n", stderr);
    }
    return 1;
}

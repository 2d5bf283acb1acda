// Runs a fuzz target without the fuzzer: every file of the folders that are named, and each of them a number of times
// with bytes changed, cut or repeated, always in the same way. Five seconds for an input, 1 GiB for all.
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "fuzz/target.h"

namespace {

constexpr unsigned kSeconds = 5;
constexpr long kMostKilobytes = 1L << 20;
constexpr std::size_t kMostBytes = 8'192;  // of an input that is changed
constexpr int kChanges = 40;

std::mt19937 g_random(20'261'123);

std::size_t Below(std::size_t end) {
    return end == 0 ? 0 : g_random() % end;
}

void Run(const std::string& bytes) {
    alarm(kSeconds);
    // A copy of its very size, so that a byte read behind it is seen.
    const std::vector<char> exact(bytes.begin(), bytes.end());
    Try({exact.data(), exact.size()});
    alarm(0);
}

std::string Changed(std::string bytes) {
    if (bytes.size() > kMostBytes) bytes = bytes.substr(0, kMostBytes);
    for (std::size_t times = 1 + Below(4); times > 0; --times) {
        const std::size_t at = Below(bytes.size());
        const std::size_t length = std::min(Below(64), bytes.size() - at);
        switch (g_random() % 4) {
            case 0:
                bytes.resize(at);
                break;
            case 1:
                bytes.insert(at, bytes.substr(at, length));
                break;
            case 2:
                bytes.erase(at, length);
                break;
            default:
                if (!bytes.empty()) bytes[at] = static_cast<char>(g_random());
        }
    }
    return bytes;
}

}  // namespace

int main(int count, char** words) {
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < count; ++i) {
        if (!std::filesystem::is_directory(words[i])) continue;
        for (const auto& entry : std::filesystem::directory_iterator(words[i]))
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    for (const std::filesystem::path& file : files) {
        std::ifstream in(file, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(in), {}};
        Run(bytes);
        for (int i = 0; i < kChanges; ++i)
            Run(Changed(bytes));
    }
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    std::printf("%zu files, %ld KiB\n", files.size(), used.ru_maxrss);
    return files.empty() || used.ru_maxrss > kMostKilobytes ? 1 : 0;
}

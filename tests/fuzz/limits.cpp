#include <array>
#include <cstdint>
#include <vector>

#include "fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Try({reinterpret_cast<const char*>(data), size});
    return 0;
}

// Each input gets five seconds and the process 512 MiB, unless the command line says otherwise.
extern "C" int LLVMFuzzerInitialize(int* count, char*** words) {
    static std::array<char, 32> seconds = {"-timeout=5"};
    static std::array<char, 32> memory = {"-rss_limit_mb=512"};
    static std::vector<char*> all(*words, *words + *count);
    all.insert(all.begin() + 1, {seconds.data(), memory.data()});
    all.push_back(nullptr);
    *count = static_cast<int>(all.size()) - 1;
    *words = all.data();
    return 0;
}

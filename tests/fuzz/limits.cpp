#include <array>
#include <vector>

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

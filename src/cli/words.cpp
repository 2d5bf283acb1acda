#include "cli/words.h"

namespace rlx::cli {

namespace {

/// No keyboard types it.
constexpr char kMark = '\x1F';

bool IsNegativeFraction(const std::string& word) {
    return word.size() > 2 && word.starts_with("-.") && word[2] >= '0' && word[2] <= '9';
}

}  // namespace

std::vector<std::string> WordsOf(int count, char** words) {
    std::vector<std::string> list;
    for (int i = 1; i < count; ++i) {
        std::string word = words[i];
        const bool emptyValue = word.starts_with("--") && word.size() > 3 && word.find('=') == word.size() - 1;
        if (emptyValue) word.pop_back();
        if (IsNegativeFraction(word)) word.insert(word.begin(), kMark);
        list.push_back(std::move(word));
        if (emptyValue) list.emplace_back();
    }
    return list;
}

void TakeMarksOff(CLI::App& app) {
    const auto all = [](const auto*) { return true; };
    for (CLI::Option* option : app.get_options(all))
        option->transform([](std::string word) {
            if (word.starts_with(kMark) && IsNegativeFraction(word.substr(1))) word.erase(0, 1);
            return word;
        });
    for (CLI::App* sub : app.get_subcommands(all))
        TakeMarksOff(*sub);
}

std::string WithoutMarks(std::string text) {
    std::erase(text, kMark);
    return text;
}

}  // namespace rlx::cli

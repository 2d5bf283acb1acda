#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/paths.h"

namespace rlx::test {

struct NumberedName {
    std::string name;
    int number;
};

/// The "kName = number" of the headers of that name anywhere below src, as far as the names begin with `prefix`.
inline std::vector<NumberedName> NumberedNames(const std::string& header, const std::string& prefix) {
    std::vector<NumberedName> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(std::string(kTestDir) + "/../src")) {
        if (entry.path().filename() != header) continue;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            const auto at = line.find(prefix);
            if (at == std::string::npos) continue;
            std::istringstream words(line.substr(at));
            NumberedName name;
            std::string equals;
            if (words >> name.name >> equals >> name.number && equals == "=") found.push_back(name);
        }
    }
    return found;
}

}  // namespace rlx::test

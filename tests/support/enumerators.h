#pragma once

#include <fstream>
#include <regex>

#include "support/paths.h"

namespace rlx::test {

struct NumberedName {
    std::string name;
    int number;
};

/// The enumerators of a header of src/shell that begin with `prefix`.
inline std::vector<NumberedName> Enumerators(const std::string& header, const std::string& prefix) {
    std::ifstream file(std::string(kTestDir) + "/../src/shell/" + header);
    const std::regex pattern(" *(" + prefix + "\\w+) = (\\d+),.*");
    std::vector<NumberedName> found;
    for (std::string line; std::getline(file, line);) {
        std::smatch match;
        if (std::regex_match(line, match, pattern)) found.push_back({match[1], std::stoi(match[2])});
    }
    return found;
}

}  // namespace rlx::test

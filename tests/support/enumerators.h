#pragma once

#include <fstream>
#include <sstream>

#include "support/paths.h"

namespace rlx::test {

struct NumberedName {
    std::string name;
    int number;
};

/// The enumerators "kName = number," of a header of src/shell that begin with `prefix`.
inline std::vector<NumberedName> Enumerators(const std::string& header, const std::string& prefix) {
    std::ifstream file(std::string(kTestDir) + "/../src/shell/" + header);
    std::vector<NumberedName> found;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        NumberedName entry;
        std::string equals;
        if (words >> entry.name >> equals >> entry.number && equals == "=" && entry.name.starts_with(prefix)) {
            found.push_back(entry);
        }
    }
    return found;
}

}  // namespace rlx::test

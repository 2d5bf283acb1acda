#pragma once

#include <string>

namespace rlx {

/// The running system as it names itself.
struct MachineInfo {
    int osMajor = 0;
    int osMinor = 0;
    std::u16string processor;  ///< its architecture ("x86_64")
};

MachineInfo ReadMachineInfo();

}  // namespace rlx

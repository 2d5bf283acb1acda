#include "platform/posix/machine_info.h"

#include <sys/utsname.h>

#include "base/number.h"
#include "base/text.h"

namespace rlx {

MachineInfo ReadMachineInfo() {
    utsname names{};
    if (uname(&names) != 0) return {};
    const std::u16string release = FromUtf8(names.release);
    MachineInfo info;
    info.osMajor = ParseInteger(release);
    const std::size_t dot = release.find(u'.');
    if (dot != std::u16string::npos) info.osMinor = ParseInteger(release.substr(dot + 1));
    info.processor = FromUtf8(names.machine);
    return info;
}

}  // namespace rlx

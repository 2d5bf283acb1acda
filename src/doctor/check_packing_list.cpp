#include "doctor/checks.h"
#include "doctor/text_ids.h"
#include "tools/packing/packing_file.h"

namespace rlx {

void CheckPackingList(const DoctorPorts& ports, CDoctorReport& report) {
    constexpr std::size_t kLimit = std::size_t{4} * 1024 * 1024;  // more is not read by the page either
    const std::filesystem::path file = ports.folder / "pack.dat";
    if (!ports.files.IsFile(file)) return;
    const auto bytes = ports.files.ReadFile(file, kLimit);
    if (!bytes)
        report.Add(file, 0, kTextDoctorMissing);
    else if (ReadPackingFile(*bytes).lossy)
        report.Add(file, 0, kTextDoctorPack);
}

}  // namespace rlx

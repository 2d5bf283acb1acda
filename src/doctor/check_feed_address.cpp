#include "base/text.h"
#include "doctor/checks.h"
#include "doctor/text_ids.h"
#include "feeds/feed_address.h"
#include "feeds/http_url.h"

namespace rlx {

void CheckFeedAddress(const DoctorPorts& ports, CDoctorReport& report) {
    const std::filesystem::path file = ports.folder / kAddressFile;
    const auto bytes = ports.files.ReadFile(file, kMaxDoctorFile);
    if (!bytes) return report.Add(file, 0, kTextDoctorMissing);
    if (bytes->find('*') == std::string::npos) report.Add(file, 1, kTextDoctorAddressEnd);
    const std::u16string address = FeedServerAddress(ports.files, ports.folder);
    if (!ParseHttpUrl(address)) report.Add(file, 1, kTextDoctorAddress, {Trim(address)});
}

}  // namespace rlx

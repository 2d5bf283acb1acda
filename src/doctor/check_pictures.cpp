#include <algorithm>
#include <array>

#include "base/text.h"
#include "doctor/checks.h"
#include "doctor/text_ids.h"

namespace rlx {

namespace {

constexpr int kDeepest = 5;  // folders below the application folder

bool IsPictureName(const std::string& name) {
    const std::u16string folded = FoldCase(Widen(name));
    constexpr std::array<std::u16string_view, 4> kEnds = {u".jpg", u".jpeg", u".png", u".bmp"};
    return std::ranges::any_of(kEnds, [&folded](std::u16string_view end) { return folded.ends_with(end); });
}

void CheckFolder(const DoctorPorts& ports, const IImageCodec& codec, const std::filesystem::path& folder, int depth,
                 CDoctorReport& report) {
    for (const std::string& name : ports.files.ListFiles(folder)) {
        if (!IsPictureName(name)) continue;
        const auto bytes = ports.files.ReadFile(folder / name, IImageCodec::kMaxFileSize);
        if (!bytes || !codec.Load(*bytes)) report.Add(folder / name, 0, kTextDoctorPicture);
    }
    if (depth == kDeepest) return;
    for (const std::string& name : ports.files.ListFolders(folder))
        CheckFolder(ports, codec, folder / name, depth + 1, report);
}

}  // namespace

void CheckPictures(const DoctorPorts& ports, const IImageCodec& codec, CDoctorReport& report) {
    CheckFolder(ports, codec, ports.folder, 0, report);
}

}  // namespace rlx

#include "skins/skin_map.h"

#include <algorithm>
#include <array>
#include <vector>

namespace rlx {
namespace {

constexpr std::array kLayoutsBySize = {SkinLayout::kPortrait, SkinLayout::kSquare, SkinLayout::kLandscape};

}  // namespace

std::optional<CBitmap> LoadSkinMap(IFileSystem& files, const IImageCodec& codec, const CSkin& skin, int width,
                                   const BrokenPicture& broken) {
    std::optional<CBitmap> best;
    std::vector<std::filesystem::path> seen;
    for (const SkinLayout layout : kLayoutsBySize) {
        const auto file = skin.Picture(files, SkinKey::kMapMI, layout);
        if (!file || std::find(seen.begin(), seen.end(), *file) != seen.end()) continue;
        seen.push_back(*file);
        const auto bytes = files.ReadFile(*file, IImageCodec::kMaxFileSize);
        auto bitmap = bytes ? codec.Load(*bytes) : std::nullopt;
        if (!bitmap) broken(*file);
        if (!bitmap || (best && bitmap->Width() <= best->Width())) continue;
        best = std::move(bitmap);
        if (best->Width() >= width) break;
    }
    return best;
}

}  // namespace rlx

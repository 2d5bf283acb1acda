#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "platform/bitmap.h"
#include "platform/file_system.h"
#include "platform/image_codec.h"
#include "skins/skin.h"

namespace rlx {

/// Told of a picture that is there but cannot be read.
using BrokenPicture = std::function<void(const std::filesystem::path& file)>;

/// The world map of a skin: of the files that the portrait, the square and the landscape layout give it, the first that
/// is at least `width` pixels wide, else the widest. A width of 1 thus asks for the portrait layout's own. Nothing when
/// none can be read. One thread at a time.
std::optional<CBitmap> LoadSkinMap(IFileSystem& files, const IImageCodec& codec, const CSkin& skin, int width,
                                   const BrokenPicture& broken);

}  // namespace rlx

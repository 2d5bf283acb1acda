#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/bitmap.h"

/// One reader for each kind of picture. Each answers as `IImageCodec::Load` does and does not throw.
namespace rlx {

std::optional<CBitmap> LoadJpeg(std::string_view bytes);
std::optional<CBitmap> LoadPng(std::string_view bytes);

/// Uncompressed, 8 bits with a palette, 24 or 32 bits; rows from the bottom or from the top.
std::optional<CBitmap> LoadBmp(std::string_view bytes);

std::optional<std::string> EncodePng(const CBitmap& bitmap);

}  // namespace rlx

#pragma once

#include <filesystem>
#include <memory>

#include "platform/image_codec.h"

namespace rlx {

/// Pictures by "rlx_pictures.so", which is loaded at the first picture: most runs of a program without a window see
/// none, and its libraries take longer to load than some answers take. The module stays loaded to the end. One thread
/// at a time.
class CImageModule : public IImageCodec {
public:
    /// The module is looked for in `programFolder`, then in its neighbour "lib/roamlytix".
    explicit CImageModule(std::filesystem::path programFolder) : m_programFolder(std::move(programFolder)) {}

    /// Both give nothing when the module cannot be loaded, too.
    std::optional<CBitmap> Load(std::string_view bytes) const override;
    std::optional<std::string> SavePng(const CBitmap& bitmap) const override;

private:
    const IImageCodec* Codec() const;

    std::filesystem::path m_programFolder;
    mutable std::unique_ptr<IImageCodec> m_codec;
};

}  // namespace rlx

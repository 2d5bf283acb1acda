#include "platform/posix/image_module.h"

#include "platform/posix/program_module.h"

namespace rlx {

namespace {

constexpr char kModule[] = "rlx_pictures.so";
constexpr char kEntry[] = "RlxMakeImageCodec";

}  // namespace

const IImageCodec* CImageModule::Codec() const {
    if (!m_codec) {
        using Make = IImageCodec* (*)();
        const auto make = reinterpret_cast<Make>(LoadProgramModule(m_programFolder, kModule, kEntry));
        if (make != nullptr) m_codec.reset(make());
    }
    return m_codec.get();
}

std::optional<CBitmap> CImageModule::Load(std::string_view bytes) const {
    const IImageCodec* codec = Codec();
    return codec == nullptr ? std::nullopt : codec->Load(bytes);
}

std::optional<std::string> CImageModule::SavePng(const CBitmap& bitmap) const {
    const IImageCodec* codec = Codec();
    return codec == nullptr ? std::nullopt : codec->SavePng(bitmap);
}

}  // namespace rlx

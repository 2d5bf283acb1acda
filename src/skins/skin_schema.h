#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The one table of sections and keys of a skin file, which reader, validator and writer all use.
namespace rlx {

enum class SkinSection { kDescription, kCommonFolders, kGeneral, kClocks, kWeather, kMap, kCurrency, kTools };

/// As they stand in the header lines, in the order of `SkinSection`.
inline constexpr std::array<std::u16string_view, 8> kSkinSectionNames = {
    u"Description", u"Common Folders", u"General", u"Clocks", u"Weather", u"Map", u"Currency", u"Tools",
};

enum class SkinKeyKind {
    kText,
    kFolder,  ///< below the skin's folder
    kColour,
    kUncheckedColour,  ///< a colour that a valid skin may lack
    kImageP,           ///< a picture in the folder of the portrait layout
    kImageL,           ///< in that of the landscape layout
    kImageS,           ///< in that of the square layout
    kImageAny,         ///< a picture that every layout has under the same name
    kFolderOfImage,    ///< a picture whose folder alone must exist
    kIconSet,          ///< a folder, or "default"
};

/// All keys, named kSectionKEY: `SkinKey::kClocksCMDC`.
enum class SkinKey : std::uint8_t {
#define RLX_SKIN_KEY(section, key, kind, fallback) k##section##key,
#include "skins/skin_keys.inc"
#undef RLX_SKIN_KEY
};

struct SkinKeyRow {
    SkinKey key;
    SkinSection section;
    std::u16string_view name;
    SkinKeyKind kind;
    std::uint32_t fallback;  ///< 0xBBGGRR; colours only
};

inline constexpr SkinKeyRow kSkinKeys[] = {
#define RLX_SKIN_KEY(section, key, kind, fallback) \
    {SkinKey::k##section##key, SkinSection::k##section, u"" #key, SkinKeyKind::kind, fallback},
#include "skins/skin_keys.inc"
#undef RLX_SKIN_KEY
};
static_assert(std::size(kSkinKeys) == 70);

constexpr const SkinKeyRow& RowOf(SkinKey key) {
    return kSkinKeys[static_cast<std::size_t>(key)];
}

constexpr std::u16string_view NameOf(SkinSection section) {
    return kSkinSectionNames[static_cast<std::size_t>(section)];
}

constexpr bool IsColour(SkinKeyKind kind) {
    return kind == SkinKeyKind::kColour || kind == SkinKeyKind::kUncheckedColour;
}

/// Windows that are taller than wide, wider than tall, and nearly square.
enum class SkinLayout { kPortrait, kLandscape, kSquare };

/// The key of the folder that holds a layout's pictures.
constexpr SkinKey FolderKeyOf(SkinLayout layout) {
    constexpr SkinKey kKeys[] = {SkinKey::kCommonFoldersP, SkinKey::kCommonFoldersL, SkinKey::kCommonFoldersS};
    return kKeys[static_cast<std::size_t>(layout)];
}

}  // namespace rlx

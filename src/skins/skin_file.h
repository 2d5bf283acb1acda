#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/byte_stream.h"
#include "platform/file_system.h"

/// The text of a skin file (*.skn) and the two lookups in it. Pure functions, except the reading.
namespace rlx {

/// What a lookup yields for a section or key that is not there.
inline constexpr std::u16string_view kSkinMissing = u"!.!";

/// The text that counts: everything before the first "<", at most `kMaxTokenLength` characters, each byte one
/// character.
std::u16string ReadSkinText(IByteStream& stream);

/// Nothing when the file cannot be opened.
std::optional<std::u16string> ReadSkinText(IFileSystem& files, const std::filesystem::path& file);

/// The body of a section, its header included: up to the first ">" behind the header; where none follows anywhere, up
/// to the first "*"; without that either, the rest. A section that lacks its ">" so holds the next one too.
std::u16string SectionText(std::u16string_view text, std::u16string_view section);

/// The value of the first place that holds key + "@", up to the line feed less the one character before it (the
/// carriage return). A line without a line feed is taken whole.
std::u16string KeyValue(std::u16string_view section, std::u16string_view key);

/// A value that names something (a file, the skin itself): edited skins are written in UTF-8, so bytes that are
/// well-formed UTF-8 are read as that.
std::u16string DecodedSkinValue(std::u16string_view value);

/// True for a decimal number without sign, of digits only, that fits 32 bits.
bool IsSkinColour(std::u16string_view value);

/// 0xBBGGRR of a value, as lenient as a decimal conversion: reading stops at the first character that is no digit, a
/// negative number wraps around, one beyond 32 bits becomes white. Nothing when there is no number.
std::optional<std::uint32_t> ParseSkinColour(std::u16string_view value);

}  // namespace rlx

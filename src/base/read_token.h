#pragma once

#include <cstddef>
#include <string>

#include "base/byte_stream.h"

namespace rlx {

/// The most characters that a token holds.
inline constexpr std::size_t kMaxTokenLength = 1499;

/// The one tokenizer of all text files of the application folder.
///
/// Each byte becomes the UTF-16 unit of the same value (ISO 8859-1). The token is what stands before `delimiter` or the
/// end of the stream; the delimiter is consumed and not part of it. A delimiter met as the very first character is
/// skipped and the token runs on to the next one, so that an empty field is never returned for a doubled delimiter. A
/// carriage return stays in the token. Of a longer token the first `kMaxTokenLength` characters are kept and the rest
/// is dropped, so that an overlong field never shifts the fields behind it. At the end of the stream the token is
/// empty.
std::u16string ReadToken(CByteReader& reader, char delimiter);

}  // namespace rlx

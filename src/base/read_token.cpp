#include "base/read_token.h"

namespace rlx {

std::u16string ReadToken(CByteReader& reader, char delimiter) {
    const int end = static_cast<unsigned char>(delimiter);
    std::u16string token;
    int byte = reader.Next();
    if (byte == end) byte = reader.Next();
    while (byte >= 0 && byte != end) {
        if (token.size() < kMaxTokenLength) token.push_back(static_cast<char16_t>(byte));
        byte = reader.Next();
    }
    return token;
}

}  // namespace rlx

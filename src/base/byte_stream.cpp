#include "base/byte_stream.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace rlx {

CMemoryStream::CMemoryStream(std::string bytes) : m_bytes(std::move(bytes)) {}

std::size_t CMemoryStream::Read(char* buffer, std::size_t size) {
    const std::size_t count = std::min(size, m_bytes.size() - m_at);
    std::memcpy(buffer, m_bytes.data() + m_at, count);
    m_at += count;
    return count;
}

CByteReader::CByteReader(IByteStream& stream) : m_stream(stream), m_block(kBlockSize, '\0') {}

bool CByteReader::Fill() {
    m_before += m_at;
    m_filled = m_stream.Read(m_block.data(), m_block.size());
    m_at = 0;
    return m_filled > 0;
}

}  // namespace rlx

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rlx {

/// Bytes read once from front to end. One thread at a time.
class IByteStream {
public:
    virtual ~IByteStream() = default;

    /// Reads up to `size` bytes into `buffer` and returns how many came. 0 means the end; a device error counts as the
    /// end.
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
};

/// A stream over bytes in memory; it owns its copy.
class CMemoryStream : public IByteStream {
public:
    explicit CMemoryStream(std::string bytes);
    std::size_t Read(char* buffer, std::size_t size) override;

private:
    std::string m_bytes;
    std::size_t m_at = 0;
};

/// Hands out single bytes of a stream that it reads in blocks. Does not own the stream.
class CByteReader {
public:
    explicit CByteReader(IByteStream& stream);

    /// The next byte as 0 to 255, or -1 at the end.
    int Next() { return AtEnd() ? -1 : static_cast<unsigned char>(m_block[m_at++]); }

    /// True when no byte is left. May read a block to find out.
    bool AtEnd() { return m_at == m_filled && !Fill(); }

    /// How many bytes were handed out.
    std::size_t Taken() const { return m_before + m_at; }

private:
    bool Fill();

    static constexpr std::size_t kBlockSize = 16384;

    IByteStream& m_stream;
    std::string m_block;
    std::size_t m_at = 0;
    std::size_t m_filled = 0;
    std::size_t m_before = 0;  ///< bytes of the blocks before this one
};

}  // namespace rlx

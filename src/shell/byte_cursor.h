#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace rlx {

/// Reads little-endian values of a resource from front to end. Past the end every read gives 0 or an empty text and
/// `Ok` turns false for good, so a parser may read a whole record and ask once. Does not own the bytes.
class CByteCursor {
public:
    explicit CByteCursor(std::span<const std::byte> bytes, std::size_t at = 0) : m_bytes(bytes), m_at(at) {}

    bool Ok() const { return m_ok; }
    std::size_t At() const { return m_at; }

    /// Moves on by `count` bytes; refused when fewer are left.
    bool Skip(std::size_t count) {
        if (m_at > m_bytes.size() || m_bytes.size() - m_at < count) m_ok = false;
        if (m_ok) m_at += count;
        return m_ok;
    }

    std::uint8_t U8() { return static_cast<std::uint8_t>(Number(1)); }
    std::uint16_t U16() { return static_cast<std::uint16_t>(Number(2)); }
    std::uint32_t U32() { return Number(4); }
    std::int16_t I16() { return static_cast<std::int16_t>(U16()); }

    /// Moves on to the next offset that `step` divides.
    bool Align(std::size_t step) { return Skip((step - m_at % step) % step); }

    /// UTF-16 units, `count` of them.
    std::u16string Units(std::size_t count) {
        if (m_at > m_bytes.size() || (m_bytes.size() - m_at) / 2 < count) m_ok = false;
        std::u16string text;
        if (!m_ok) return text;
        text.reserve(count);
        while (text.size() < count)
            text.push_back(static_cast<char16_t>(U16()));
        return text;
    }

    /// UTF-16 units up to a zero, which is read too. A text without its zero is a fault.
    std::u16string ZeroEnded() {
        std::u16string text;
        for (char16_t unit = U16(); m_ok && unit != 0; unit = U16())
            text.push_back(unit);
        return m_ok ? text : std::u16string();
    }

private:
    std::uint32_t Number(std::size_t size) {
        const std::size_t from = m_at;
        if (!Skip(size)) return 0;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= std::to_integer<std::uint32_t>(m_bytes[from + i]) << (8 * i);
        return value;
    }

    std::span<const std::byte> m_bytes;
    std::size_t m_at;
    bool m_ok = true;
};

}  // namespace rlx

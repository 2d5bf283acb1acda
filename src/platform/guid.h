#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace rlx {

/// Identity of a network destination.
struct Guid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4{};

    friend bool operator==(const Guid&, const Guid&) = default;
};

/// Upper-case hexadecimal in the five groups that a GUID has, each part and byte without leading zeros:
/// "A-B-C-12-3456789". The names of provider keys are made of it.
std::u16string GuidText(const Guid& guid);

}  // namespace rlx

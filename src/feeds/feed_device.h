#pragma once

#include <string>
#include <string_view>

namespace rlx {

struct PixelSize {
    int width = 0;
    int height = 0;
};

/// What the feed server is told about the device.
struct FeedDevice {
    int osMajor = 0;
    int osMinor = 0;
    std::u16string processor;   ///< only used for the device's number
    std::u16string appVersion;  ///< version of this program
    PixelSize screen;           ///< of the primary screen, pixels
    PixelSize workArea;         ///< what the desktop leaves free of it, pixels
};

/// A decimal number that stays the same for a device and its owner: a 32-bit hash of owner, system version and
/// processor.
std::u16string DeviceNumber(std::u16string_view owner, const FeedDevice& device);

}  // namespace rlx

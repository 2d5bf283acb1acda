#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "feeds/feed_device.h"
#include "platform/registry.h"
#include "shell/registry_store.h"

namespace rlx {

/// Builds the parameter strings of the three kinds of request, anew for each one. Values stand in them as they are,
/// without percent-encoding: that is the protocol.
class CFeedParameters {
public:
    /// Called when no owner name is known; may let the user enter one into the registry.
    using AskOwner = std::function<void()>;

    CFeedParameters(IRegistry& registry, FeedDevice device, AskOwner askOwner = {});

    /// `home`: name of the home city; `workArea`: what the calling screen laid itself out in.
    std::u16string CurrencyParameters(std::u16string_view home, PixelSize workArea) const;

    /// `city`: its feed name. The home city is the one of the settings.
    std::u16string WeatherParameters(std::u16string_view city, PixelSize workArea) const;

    /// Home city and news identifier are those of the settings, the work area is the system's.
    std::u16string NewsParameters() const;

    /// The home city's name in the settings; empty when there is none.
    std::u16string HomeName() const;

    const FeedDevice& Device() const { return m_device; }

private:
    std::u16string Compose(std::u16string_view job, std::u16string_view home, PixelSize workArea) const;
    std::u16string OwnerName() const;

    IRegistry& m_registry;
    FeedDevice m_device;
    AskOwner m_askOwner;
};

}  // namespace rlx

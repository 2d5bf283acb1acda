#include "feeds/feed_parameters.h"

#include <utility>

#include "base/number.h"
#include "shell/setting_names.h"

namespace rlx {

namespace {

constexpr std::size_t kMaxOwner = 383;
constexpr std::u16string_view kClosing = u"&'0'";

std::u16string SizeText(PixelSize size) {
    return FormatInteger(size.width) + u"x" + FormatInteger(size.height);
}

}  // namespace

CFeedParameters::CFeedParameters(IRegistry& registry, FeedDevice device, AskOwner askOwner)
    : m_registry(registry), m_device(std::move(device)), m_askOwner(std::move(askOwner)) {}

std::u16string CFeedParameters::CurrencyParameters(std::u16string_view home, PixelSize workArea) const {
    return Compose(u"&jc=110", home, workArea);
}

std::u16string CFeedParameters::WeatherParameters(std::u16string_view city, PixelSize workArea) const {
    const std::u16string job = u"&jc=111&c='" + std::u16string(city) + u"'";
    return Compose(job, HomeName(), workArea).append(kClosing);
}

std::u16string CFeedParameters::NewsParameters() const {
    const std::u16string newsId =
        CRegistryStore(m_registry).ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kNewsId);
    return Compose(u"&jc=115&cnid=" + newsId, HomeName(), m_device.workArea).append(kClosing);
}

std::u16string CFeedParameters::HomeName() const {
    return CRegistryStore(m_registry).ReadString(RegistryRoot::kLocalMachine, keys::kRoamlytix, names::kHomeName);
}

std::u16string CFeedParameters::Compose(std::u16string_view job, std::u16string_view home, PixelSize workArea) const {
    const std::u16string owner = OwnerName();
    std::u16string text = u"did=" + owner;
    text += job;
    text += u"&os=wince" + FormatInteger(m_device.osMajor) + u"." + FormatInteger(m_device.osMinor);
    text += u"&gid=" + DeviceNumber(owner, m_device);
    text += u"&appver=" + m_device.appVersion;
    text += u"&home=";
    text += home;
    text += u"&scrsize=" + SizeText(m_device.screen) + u"&wasize=" + SizeText(workArea);
    return text;
}

std::u16string CFeedParameters::OwnerName() const {
    std::u16string owner =
        CRegistryStore(m_registry).ReadString(RegistryRoot::kCurrentUser, keys::kOwner, names::kOwnerName);
    if (owner.empty() && m_askOwner) {
        m_askOwner();
        owner = CRegistryStore(m_registry).ReadString(RegistryRoot::kCurrentUser, keys::kOwner, names::kOwnerName);
    }
    return owner.substr(0, kMaxOwner);
}

}  // namespace rlx

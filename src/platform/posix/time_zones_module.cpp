#include "platform/posix/time_zones_module.h"

#include "platform/posix/program_module.h"

namespace rlx {

ITimeZones* CTimeZonesModule::Zones() {
    if (m_zones == nullptr) {
        using Make = ITimeZones* (*)();
        const auto make =
            reinterpret_cast<Make>(LoadProgramModule(m_programFolder, "rlx_zones.so", "RlxMakeTimeZones"));
        if (make != nullptr) m_zones.reset(make());
    }
    return m_zones.get();
}

std::optional<std::vector<OffsetChange>> CTimeZonesModule::Offsets(std::string_view zone, std::int64_t from,
                                                                   std::int64_t to) {
    ITimeZones* zones = Zones();
    return zones == nullptr ? std::nullopt : zones->Offsets(zone, from, to);
}

std::vector<std::string> CTimeZonesModule::Names() {
    ITimeZones* zones = Zones();
    return zones == nullptr ? std::vector<std::string>() : zones->Names();
}

std::string CTimeZonesModule::OwnZone() {
    ITimeZones* zones = Zones();
    return zones == nullptr ? std::string() : zones->OwnZone();
}

}  // namespace rlx

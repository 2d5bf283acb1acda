#pragma once

#include <filesystem>
#include <memory>

#include "platform/time_zones.h"

namespace rlx {

/// Time zones that are loaded from "rlx_zones.so" when they are first asked for, since few runs of a program need them.
/// Without the module the system knows no zones. One thread at a time.
class CTimeZonesModule : public ITimeZones {
public:
    /// See `LoadProgramModule`.
    explicit CTimeZonesModule(std::filesystem::path programFolder) : m_programFolder(std::move(programFolder)) {}

    std::optional<std::vector<OffsetChange>> Offsets(std::string_view zone, std::int64_t from,
                                                     std::int64_t to) override;
    std::vector<std::string> Names() override;
    std::string OwnZone() override;

private:
    ITimeZones* Zones();

    std::filesystem::path m_programFolder;
    std::unique_ptr<ITimeZones> m_zones;
};

}  // namespace rlx

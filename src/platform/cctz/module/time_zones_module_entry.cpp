#include <memory>

#include "platform/cctz/cctz_time_zones.h"

/// What `CTimeZonesModule` asks the module for; the caller owns the object.
extern "C" __attribute__((visibility("default"))) rlx::ITimeZones* RlxMakeTimeZones() {
    return std::make_unique<rlx::CCctzTimeZones>().release();
}

#include "include/time.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

namespace {
long magnitude(LONG v) { return v < 0 ? -v : v; }
} // namespace

extern "C" ORV_EXPORT int gettz(struct timezone *zone) {
    TIME_ZONE_INFORMATION info;
    DWORD state = GetTimeZoneInformation(&info);
    if (state == TIME_ZONE_ID_INVALID) return -1;
    zone->tz_minuteswest = info.Bias;
    zone->tz_dsttime = state == TIME_ZONE_ID_UNKNOWN    ? 0
                       : state == TIME_ZONE_ID_STANDARD ? magnitude(info.StandardBias)
                                                        : magnitude(info.DaylightBias);
    return 0;
}

// A non-zero StandardBias in standard time counts as a shift in force.
extern "C" ORV_EXPORT int _dstoff_(void) {
    TIME_ZONE_INFORMATION info;
    switch (GetTimeZoneInformation(&info)) {
    case TIME_ZONE_ID_STANDARD: return static_cast<int>(magnitude(info.StandardBias));
    case TIME_ZONE_ID_DAYLIGHT: return static_cast<int>(magnitude(info.DaylightBias));
    default: return 0;
    }
}

#include "clib/time/stamp.h"
#include "runtime/export.h"

#include <cstdint>

namespace {
// All zero until the start code asks for it: clock then counts from 1970.
constinit orv::cal::Stamp start_stamp = {0, 0};
} // namespace

extern "C" ORV_EXPORT void __init_start_time(void) { start_stamp = orv::cal::current_stamp(); }

// Wall-clock milliseconds since the start stamp, wrapping in 32 bits.
extern "C" ORV_EXPORT clock_t _orv_clock(void) {
    orv::cal::Stamp now = orv::cal::current_stamp();
    std::uint32_t seconds = static_cast<std::uint32_t>(now.seconds) -
                            static_cast<std::uint32_t>(start_stamp.seconds);
    std::uint32_t ms = static_cast<std::uint32_t>(now.millisecond) -
                       static_cast<std::uint32_t>(start_stamp.millisecond);
    return static_cast<clock_t>(seconds * 1000u + ms);
}

extern "C" ORV_EXPORT clock_t clock(void) { return _orv_clock(); }

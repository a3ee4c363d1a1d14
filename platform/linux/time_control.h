/*
 * Test controls of the stand-in's clock and time zone: not part of the
 * platform's interface. Usable from C and C++.
 */
#ifndef ORV_PLATFORM_TIME_CONTROL_H
#define ORV_PLATFORM_TIME_CONTROL_H

#include "../kernel32.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Every clock call answers `now` from here on; null goes back to the real
   clock. */
K32_API void k32_set_clock(const FILETIME *now);
/* The zone rule in the form of TZ (copied, up to 127 characters) replaces
   the environment's; null goes back to TZ, /etc/localtime, UTC. */
K32_API void k32_set_time_zone(const char *rule);
/* GetTimeZoneInformation calls `first` (1: the next) to first + count - 1
   from now fail; a count of 0 cancels. */
K32_API void k32_fail_time_zone(unsigned first, unsigned count);

#ifdef __cplusplus
}
#endif

#endif

// The stand-in's time zone: a rule in the form of the TZ variable
// ("EST5EDT", "CET-1CEST,M3.5.0,M10.5.0/3", "XST5XDT,J1/0,J365/25"),
// evaluated at the current date.
#pragma once

#include "../kernel32.h"

#include <cstdint>

namespace orv::k32 {

// When a period begins: 'J' day 1..365 never counting 29 February, 'D' day
// 0..365, 'M' the week-th (5: last) weekday of month; at `time` seconds
// after local midnight (may be negative or past 24 hours).
struct TzDate {
    char kind;
    int month, week, day;
    long time;
};

struct TzRule {
    char std_name[16];
    char dst_name[16];
    long std_offset;  // seconds west of Greenwich: UTC = local + offset
    bool has_dst;
    long dst_offset;
    TzDate dst_start, dst_end;
};

// Parses a rule; false (and `out` unusable) when the text is not one.
bool parse_tz_rule(const char *text, TzRule &out);

// The zone information at `now` (seconds since 1970 UTC); answers the
// state: 0 no daylight saving, 1 standard time, 2 daylight time.
DWORD zone_info_at(const TzRule &rule, std::int64_t now, TIME_ZONE_INFORMATION *info);

// The rule in force: the test override, else TZ, else /etc/localtime, else
// UTC.
const TzRule &current_rule();

// GetTimeZoneInformation without fault injection.
DWORD zone_now(TIME_ZONE_INFORMATION *info);

// The whole offset in force now, in minutes: UTC = local + this.
LONG zone_bias_now();

} // namespace orv::k32

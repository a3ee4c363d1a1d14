// Calendar arithmetic of the stand-in's clock calls: proleptic Gregorian
// dates against day counts and 100-nanosecond ticks.
#pragma once

#include "../kernel32.h"

#include <cstdint>

namespace orv::k32 {

inline constexpr std::int64_t ticks_per_second = 10000000;
inline constexpr std::int64_t ticks_per_day = ticks_per_second * 86400;
// Ticks from 1601-01-01 to 1970-01-01.
inline constexpr std::int64_t epoch_1970_ticks = 116444736000000000LL;

bool is_leap(std::int64_t year);
int month_days(std::int64_t year, int month);  // month 1 to 12

// Days from 1970-01-01 to the given date (negative before it).
std::int64_t days_from_civil(std::int64_t year, int month, int day);

struct Civil {
    std::int64_t year;
    int month, day, weekday;  // weekday 0 for Sunday
};
Civil civil_from_days(std::int64_t days);

inline std::uint64_t filetime_value(const FILETIME &ft) {
    return (std::uint64_t{ft.dwHighDateTime} << 32) | ft.dwLowDateTime;
}
inline FILETIME make_filetime(std::uint64_t v) {
    return FILETIME{static_cast<DWORD>(v), static_cast<DWORD>(v >> 32)};
}

// The wall clock now, as ticks since 1601.
std::uint64_t clock_now_ticks();

} // namespace orv::k32

// What the calendar functions share: the name tables, the month lengths
// and the year arithmetic.
#pragma once

#include "include/time.h"

#include <cstdint>

namespace orv::cal {

extern const char day_names[7][10];
extern const char month_names[12][10];
extern const char short_day_names[7][4];
extern const char short_month_names[12][4];
extern const std::int16_t month_lengths[2][12];  // common year, leap year

// Gregorian rule for every year; `year` counts from 0 AD.
constexpr bool is_leap(std::int64_t year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// Days of a year given as years since 1900.
constexpr int year_days(std::int64_t tm_year) { return is_leap(tm_year + 1900) ? 366 : 365; }

// The static record that gmtime, localtime and mktime hand out.
extern struct tm shared_tm;

} // namespace orv::cal

#include "clib/time/calendar.h"

namespace orv::cal {

const char day_names[7][10] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                               "Thursday", "Friday", "Saturday"};
const char month_names[12][10] = {"January", "February", "March",     "April",
                                  "May",     "June",     "July",      "August",
                                  "September", "October", "November", "December"};
const char short_day_names[7][4] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
const char short_month_names[12][4] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const std::int16_t month_lengths[2][12] = {
    {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
    {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
};

constinit struct tm shared_tm = {};

} // namespace orv::cal

#include <cstddef>

static_assert(sizeof(struct tm) == 44);
static_assert(offsetof(struct tm, tm_sec) == 0 && offsetof(struct tm, tm_min) == 4 &&
              offsetof(struct tm, tm_hour) == 8 && offsetof(struct tm, tm_mday) == 12 &&
              offsetof(struct tm, tm_mon) == 16 && offsetof(struct tm, tm_year) == 20 &&
              offsetof(struct tm, tm_wday) == 24 && offsetof(struct tm, tm_yday) == 28 &&
              offsetof(struct tm, tm_isdst) == 32 && offsetof(struct tm, __tm_reserved) == 36);
static_assert(sizeof(struct timezone) == 8 && offsetof(struct timezone, tz_dsttime) == 4);
static_assert(sizeof(time_t) == 4 && sizeof(clock_t) == 4);

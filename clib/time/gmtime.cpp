#include "clib/time/calendar.h"
#include "runtime/export.h"

// Walks whole years from 1970 rather than dividing by a cycle: at most 136
// rounds over the range of time_t.
extern "C" ORV_EXPORT struct tm *gmtime(const time_t *timer) {
    using namespace orv::cal;
    struct tm &r = shared_tm;
    std::int32_t t = *timer;
    int year = 70;
    while (t < 0) {
        --year;
        t += year_days(year) * 86400;
    }
    r.tm_sec = t % 60;
    r.tm_min = t / 60 % 60;
    r.tm_hour = t / 3600 % 24;
    int d = t / 86400;
    while (d >= year_days(year)) d -= year_days(year++);
    r.tm_year = year;
    r.tm_yday = d;
    r.tm_wday = (_daynum_(year) + d) % 7;
    int mon = 0;
    while (d >= _dpmonth_(mon, year)) d -= _dpmonth_(mon++, year);
    r.tm_mon = mon;
    r.tm_mday = d + 1;
    r.tm_isdst = 0;
    return &r;
}

#include "include/time.h"
#include "runtime/export.h"

namespace {

// Carries an added daylight shift into the larger fields; the shift is
// positive, so nothing ever goes down.
void carry_up(struct tm &r) {
    if (r.tm_min < 60) return;
    r.tm_hour += r.tm_min / 60;
    r.tm_min %= 60;
    if (r.tm_hour < 24) return;
    r.tm_hour -= 24;
    r.tm_wday = (r.tm_wday + 1) % 7;
    ++r.tm_yday;
    if (++r.tm_mday <= _dpmonth_(r.tm_mon, r.tm_year)) return;
    r.tm_mday = 1;
    if (++r.tm_mon < 12) return;
    r.tm_mon = 0;
    r.tm_yday = 0;
    ++r.tm_year;
}

} // namespace

// The bias and the daylight shift in force now apply to every date.
extern "C" ORV_EXPORT struct tm *localtime(const time_t *timer) {
    struct timezone zone = {0, 0};
    time_t t = *timer;
    if (gettz(&zone) == 0)
        t = static_cast<time_t>(static_cast<unsigned long>(t) -
                                static_cast<unsigned long>(zone.tz_minuteswest) * 60);
    struct tm *r = gmtime(&t);
    int shift = _dstoff_();
    if (shift <= 0) return r;
    r->tm_min += shift;
    carry_up(*r);
    r->tm_isdst = static_cast<int>(zone.tz_dsttime);
    return r;
}

#include "clib/time/calendar.h"
#include "runtime/export.h"

namespace {

using i64 = std::int64_t;

constexpr i64 limit = 0x7FFFFFFF;

i64 magnitude(i64 v) { return v < 0 ? -v : v; }
int wrap(i64 v) { return static_cast<int>(static_cast<std::uint32_t>(v)); }

// Days of month `mon` of the year `y` after 1970.
int month_days(int mon, int y) { return _dpmonth_(mon, wrap(i64{y} + 70)); }

// Folds whole years out of the month, then whole months out of a day of the
// month that runs past its month's end. False when the year would leave
// the 32-bit range.
bool fold_months(struct tm &r, int &y) {
    int q = r.tm_mon / 12;
    if (limit - magnitude(q) <= magnitude(y)) return false;
    y += q;
    r.tm_mon %= 12;
    if (r.tm_mon < 0) r.tm_mon += 12, --y;
    if (r.tm_mday > month_days(r.tm_mon, y)) {
        do {
            r.tm_mday -= month_days(r.tm_mon, y);
            if (++r.tm_mon == 12) r.tm_mon = 0, y = wrap(i64{y} + 1);  // far years wrap, as in 32 bits
        } while (month_days(r.tm_mon, y) < r.tm_mday);
    }
    return true;
}

// Carries whole units of the small fields upward. Negative fields keep their
// sign; the second arithmetic takes them as they are.
void carry_units(struct tm &r) {
    r.tm_mday = wrap(i64{r.tm_mday} + r.tm_hour / 24);
    r.tm_hour %= 24;
    r.tm_hour += r.tm_min / 60;
    r.tm_min %= 60;
    r.tm_min += r.tm_sec / 60;
    r.tm_sec %= 60;
    r.tm_hour += r.tm_min / 60;
    r.tm_min %= 60;
    r.tm_mday = wrap(i64{r.tm_mday} + r.tm_hour / 24);
    r.tm_hour %= 24;
}

// Days from 1 January 1970 to the date of the record, year y after 1970.
i64 day_number(const struct tm &r, int y) {
    i64 d = 0;
    for (int m = 0; m < r.tm_mon; ++m) d += _dpmonth_(m, r.tm_year);
    d += i64{r.tm_mday} - 1;
    for (int year = 70; year < 70 + y; ++year) d += orv::cal::year_days(year);
    for (int year = 69; year >= 70 + y; --year) d -= orv::cal::year_days(year);
    return d;
}

// t += term, unless the sum would leave the signed 32-bit range.
bool add_checked(i64 &t, i64 term) {
    if ((term < 0) == (t < 0) && magnitude(t) > limit - magnitude(term)) return false;
    t += term;
    return true;
}

} // namespace

extern "C" ORV_EXPORT time_t mktime(struct tm *r) {
    int y = wrap(i64{r->tm_year} - 70);
    if (!fold_months(*r, y)) return -1;
    carry_units(*r);
    if (!fold_months(*r, y)) return -1;
    if (magnitude(y) >= 68) return -1;
    r->tm_year = y + 70;

    i64 d = day_number(*r, y);
    if (magnitude(d) > 24855) return -1;
    i64 t = d * 86400;
    if (!add_checked(t, i64{r->tm_hour} * 3600)) return -1;
    if (!add_checked(t, i64{r->tm_min} * 60 + r->tm_sec)) return -1;
    struct timezone zone;
    if (gettz(&zone) == 0 && !add_checked(t, i64{zone.tz_minuteswest} * 60)) return -1;

    time_t result = static_cast<time_t>(t);
    *r = *localtime(&result);
    int shift = _dstoff_();
    if (shift > 0) {
        result = wrap(i64{result} - i64{shift} * 60);
        *r = *localtime(&result);
    }
    return result;
}

/* Seconds to calendar and back, in UTC: the ends of the range, leap years,
   every day of the range against a day-by-day count, and mktime's
   normalisation and limits. */
#include <limits.h>
#include <time.h>

#include "harness.h"
#include "platform/linux/time_control.h"
#include "timecheck.h"

static struct tm fields(int year, int mon, int mday, int hour, int min, int sec) {
    struct tm r = {sec, min, hour, mday, mon - 1, year - 1900, 99, 999, 77, {0, 0}};
    return r;   /* wday, yday and isdst are never read */
}

static time_t make_tm(struct tm r) { return mktime(&r); }
static time_t make(int year, int mon, int mday, int hour, int min, int sec) {
    return make_tm(fields(year, mon, mday, hour, min, sec));
}

static int leap(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

/* Every day from 13 December 1901 to 18 January 2038, counted one by one. */
static void sweep(void) {
    static const int mdays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int y = 1901, m = 12, d = 14, wday = 6, yday = 347; /* the first whole day */
    long long t = -2147483648LL + 3 * 3600 + 14 * 60 + 8; /* 14 Dec 1901 00:00:00 */
    int bad_g = 0, bad_m = 0, days = 0;
    while (t + 86400 <= 2147483647LL) {
        time_t s = (time_t)(t + 12 * 3600 + 34 * 60 + 56);
        struct tm *r = gmtime(&s);
        if (r->tm_year != y - 1900 || r->tm_mon != m - 1 || r->tm_mday != d ||
            r->tm_wday != wday || r->tm_yday != yday || r->tm_hour != 12 || r->tm_min != 34 ||
            r->tm_sec != 56)
            ++bad_g;
        if (y >= 1903 && y <= 2037 && make(y, m, d, 12, 34, 56) != s) ++bad_m;
        ++days;
        t += 86400;
        wday = (wday + 1) % 7;
        ++yday;
        if (++d > mdays[m - 1] + (m == 2 && leap(y))) {
            d = 1;
            if (++m > 12) m = 1, ++y, yday = 0;
        }
    }
    CHECK_EQ(bad_g, 0);
    CHECK_EQ(bad_m, 0);
    CHECK_EQ(days, 49710);
}

int main(void) {
    k32_set_time_zone("UTC0");

    t_section("gmtime at the edges");
    static const struct { time_t t; const char *text; } edges[] = {
        {0, "1970-1-1 0:0:0 4 0 0"}, {-1, "1969-12-31 23:59:59 3 364 0"},
        {INT_MAX, "2038-1-19 3:14:7 2 18 0"}, {INT_MIN, "1901-12-13 20:45:52 5 346 0"},
        {951782400, "2000-2-29 0:0:0 2 59 0"}, {978307199, "2000-12-31 23:59:59 0 365 0"}};
    for (unsigned i = 0; i < sizeof edges / sizeof edges[0]; ++i)
        CHECK_STR(text_of(gmtime(&edges[i].t)), edges[i].text);
    time_t t = 978307199;
    struct tm *a = gmtime(&t), *b = localtime(&t);
    CHECK(a == b); /* one static record */
    CHECK(a->__tm_reserved[0] == 0 && a->__tm_reserved[1] == 0);

    t_section("every day of the range");
    sweep();

    t_section("calendar helpers");
    const irow helpers[] = {
        IR(_daynum_(70), 4), IR(_daynum_(0), 1), IR(_daynum_(1), 2), IR(_daynum_(100), 6),
        IR(_daynum_(138), 5), IR(_daynum_(199), 4), IR(_dpmonth_(1, 0), 28),   /* 1900 */
        IR(_dpmonth_(1, 100), 29), IR(_dpmonth_(1, 200), 28), IR(_dpmonth_(1, 96), 29),
        IR(_dpmonth_(1, 199), 28), IR(_dpmonth_(11, 199), 31),
        IR(_dpmonth_(1, 96), 29), IR(_dpmonth_(3, 96), 30),   /* the cache follows the year */
    };
    CHECK_IROWS(helpers);
    CHECK_EQ(difftime(5, -3), 8.0);
    CHECK(difftime(INT_MAX, INT_MIN) == 4294967295.0 && difftime(INT_MIN, INT_MAX) == -4294967295.0);

    t_section("mktime normalises");
    /* tm_mon 12 and -1, day 32, day 0 is the last of February, second -1 */
    const struct { struct tm in; time_t t; const char *text; } norm[] = {
        {fields(1999, 13, 1, 0, 0, 0), 946684800, "2000-1-1 0:0:0 6 0 0"},
        {fields(2000, 0, 15, 0, 0, 0), 945216000, "1999-12-15 0:0:0 3 348 0"},
        {fields(1970, 1, 32, 0, 0, 0), 31 * 86400, "1970-2-1 0:0:0 0 31 0"},
        {fields(1996, 3, 0, 12, 0, 0), 825595200, "1996-2-29 12:0:0 4 59 0"},
        {fields(1980, 6, 15, 0, 0, -1), 329875199, "1980-6-14 23:59:59 6 165 0"},
    };
    for (unsigned i = 0; i < sizeof norm / sizeof norm[0]; ++i) {
        struct tm r = norm[i].in;
        CHECK_EQ(mktime(&r), norm[i].t);
        CHECK_STR(text_of(&r), norm[i].text);
    }
    const irow rows[] = {
        IR(make(1970, 1, 1, 0, 0, -1), -1),   /* one second before: not a failure */
        IR(make(1970, 1, 1, 48, -90, 3600), 2 * 86400 - 90 * 60 + 3600),
        IR(make(1970, 1, 400, 0, 0, 0), 399 * 86400),   /* days carry through months */
        IR(make(1971, -23, 1, 0, 0, 0), make(1969, 1, 1, 0, 0, 0)),   /* tm_mon -24 */
        IR(make(1971, -24, 1, 0, 0, 0), make(1968, 12, 1, 0, 0, 0)),  /* tm_mon -25 */
        IR(make(1970, 1, 31, 23, 59, 60), 31 * 86400), IR(make(1970, 1, 1, 0, 0, 1000000), 1000000),
        IR(make(1970, 1, 1, -1, 0, 0), -3600),
    };
    CHECK_IROWS(rows);

    t_section("mktime limits");
    const irow limits[] = {
        IR(make(2037, 12, 31, 23, 59, 59), 2145916799), IR(make(1903, 1, 1, 0, 0, 0), -2114380800),
        IR(make(2038, 1, 1, 0, 0, 0), -1), IR(make(1902, 12, 31, 23, 59, 59), -1),
        IR(make(2037, 13, 1, 0, 0, 0), -1), IR(make(2037, 12, 32, 0, 0, 0), -1),  /* into 2038 */
        IR(make(1970, 1, -100000, 0, 0, 0), -1),
        IR(make(1970, 1, 24855, 0, 0, 0), -1),   /* folds into 2038 */
        IR(make(2037, 1, 365, 0, 0, 0), 2145830400), IR(make(1970, 1, -24854, 0, 0, 0), -24855 * 86400),
        IR(make(1970, 1, -24855, 0, 0, 0), -1),  /* day number -24856 */
        IR(make(2037, 12, 31, 0, 0, 0), 2145830400),
        /* pushed past the range through the carries */
        IR(make(2037, 12, 31, 23, 59, 60 * 24 * 3600), -1),
        IR(make_tm((struct tm){.tm_mday = 1, .tm_mon = INT_MAX, .tm_year = 70}), -1),
        IR(make_tm((struct tm){.tm_mday = 1, .tm_year = INT_MIN}), -1),
        IR(make_tm((struct tm){.tm_mday = 1, .tm_year = INT_MAX}), -1),
        IR(make_tm((struct tm){.tm_mday = INT_MIN, .tm_year = 70}), -1),
        /* year INT_MAX - 1 after 1970, carried past the 32-bit range */
        IR(make_tm((struct tm){.tm_mday = 400, .tm_mon = 11, .tm_year = INT_MIN + 68}), -1),
        /* days carried into 2038 are out of range although time_t reaches them */
        IR(make(2037, 12, 31 + 19, 3, 14, 7), -1),
    };
    CHECK_IROWS(limits);

    t_section("asctime and ctime");
    t = 0;
    CHECK_STR(ctime(&t), "Thu Jan  1 00:00:00 1970\n");
    t = INT_MAX;
    char *text = asctime(gmtime(&t));
    CHECK_STR(text, "Tue Jan 19 03:14:07 2038\n");
    CHECK(ctime(&t) == text); /* one static buffer */
    t = INT_MIN;
    CHECK_STR(ctime(&t), "Fri Dec 13 20:45:52 1901\n");
    struct tm r = fields(1999, 12, 5, 9, 8, 7);
    r.tm_wday = 0;
    CHECK_STR(asctime(&r), "Sun Dec  5 09:08:07 1999\n");
    r.tm_mday = INT_MIN, r.tm_hour = INT_MAX, r.tm_min = -5, r.tm_year = INT_MAX - 1900;
    CHECK_STR(asctime(&r), "Sun Dec-2147483648 2147483647:-"); /* cut to 31 characters */
    return t_finish();
}

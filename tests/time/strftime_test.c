/* strftime: every conversion, the week numbers, the 12-hour clock, the
   digit rule, and the size limits. */
#include <time.h>

#include "harness.h"

static struct tm at(int year, int mon, int mday, int hour, int min, int sec, int wday, int yday) {
    struct tm r = {0};
    r.tm_year = year - 1900;
    r.tm_mon = mon - 1;
    r.tm_mday = mday;
    r.tm_hour = hour;
    r.tm_min = min;
    r.tm_sec = sec;
    r.tm_wday = wday;
    r.tm_yday = yday;
    return r;
}

static char out[256];

static const char *fmt(const char *format, const struct tm *r) {
    for (int i = 0; i < 256; ++i) out[i] = '#';
    size_t n = strftime(out, sizeof out, format, r);
    if (n >= sizeof out || out[n] != 0) return "(no terminator)";
    return out;
}

int main(void) {
    t_section("every conversion on one date");
    struct tm leap_day = at(2004, 2, 29, 13, 5, 9, 0, 59);
    CHECK_STR(fmt("%a|%A|%b|%B|%d|%H|%I|%j|%m|%M|%p|%S|%U|%w|%W|%y|%Y|%Z|%%", &leap_day),
              "Sun|Sunday|Feb|February|29|13|01|060|02|05|PM|09|09|0|08|04|2004||%");
    CHECK_STR(fmt("%c", &leap_day), "Sun Feb 29 13:05:09 2004\n");
    CHECK_STR(fmt("%x", &leap_day), "Sun Feb 29, 2004");
    CHECK_STR(fmt("[%X]", &leap_day), "[13:05:09 ]");
    CHECK_EQ(strftime(out, sizeof out, "%c", &leap_day), 25);
    struct tm epoch = at(1970, 1, 1, 0, 0, 0, 4, 0);
    char *text = asctime(&epoch);
    fmt("%c", &leap_day);
    CHECK_STR(text, "Sun Feb 29 13:05:09 2004\n"); /* %c goes through asctime's buffer */
    CHECK_STR(fmt("date: %d.%m.%Y", &leap_day), "date: 29.02.2004");
    struct tm early = at(1970, 1, 1, 0, 0, 0, 4, 0);
    CHECK_STR(fmt("%x", &early), "Thu Jan  1, 1970");
    CHECK_STR(fmt("%Y %y %j %w", &early), "1970 70 001 4");

    t_section("names");
    static const char *const longs[7] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};
    for (int d = 0; d < 7; ++d) {
        struct tm r = at(2000, 1, 1, 0, 0, 0, d, 0);
        CHECK_STR(fmt("%A", &r), longs[d]);
    }
    static const char *const months = "January February March April May June July August "
                                      "September October November December ";
    char all[128];
    unsigned n = 0;
    for (int m = 1; m <= 12; ++m) {
        struct tm r = at(2000, m, 1, 0, 0, 0, 0, 0);
        n += (unsigned)strftime(all + n, sizeof all - n, "%B ", &r);
    }
    CHECK_STR(all, months);
    struct tm sep = at(2000, 9, 1, 0, 0, 0, 5, 244);
    CHECK_STR(fmt("%a %b", &sep), "Fri Sep");

    t_section("12-hour clock");
    static const struct { int hour; const char *text; } clock12[] = {
        {0, "12 AM"}, {1, "01 AM"}, {11, "11 AM"}, {12, "12 PM"}, {13, "01 PM"}, {23, "11 PM"}};
    for (unsigned i = 0; i < sizeof clock12 / sizeof clock12[0]; ++i) {
        struct tm r = at(2000, 1, 1, clock12[i].hour, 0, 0, 6, 0);
        CHECK_STR(fmt("%I %p", &r), clock12[i].text);
    }
    struct tm noon = at(2000, 1, 1, 12, 0, 0, 6, 0);
    CHECK_STR(fmt("%X", &noon), "12:00:00 ");

    t_section("day of year and digits");
    struct tm last = at(2000, 12, 31, 0, 0, 0, 0, 365);
    CHECK_STR(fmt("%j", &last), "366");
    struct tm y2k = at(2000, 1, 1, 0, 0, 0, 6, 0);
    CHECK_STR(fmt("%y %w", &y2k), "00 6");
    struct tm odd = at(10123, 1, -3, -1, 7, 75, 0, 0); /* out-of-range fields */
    CHECK_STR(fmt("%Y %d %H %M %S", &odd), "0123 00 00 07 75");
    struct tm before = at(1899, 1, 1, 0, 0, 0, 0, 0);
    CHECK_STR(fmt("%y", &before), "00");

    t_section("week numbers");
    struct tm r = at(1995, 1, 1, 0, 0, 0, 0, 0); /* a Sunday */
    CHECK_STR(fmt("%U %W", &r), "00 00");
    r = at(1995, 1, 2, 0, 0, 0, 1, 1);
    CHECK_STR(fmt("%U %W", &r), "00 00");
    r = at(1995, 1, 8, 0, 0, 0, 0, 7);
    CHECK_STR(fmt("%U %W", &r), "01 00");
    r = at(1995, 1, 9, 0, 0, 0, 1, 8);
    CHECK_STR(fmt("%U %W", &r), "01 01");
    r = at(1995, 12, 31, 0, 0, 0, 0, 364);
    CHECK_STR(fmt("%U %W", &r), "52 51"); /* Monday weeks: this one began on 25 December */
    r = at(1994, 1, 1, 0, 0, 0, 6, 0); /* a Saturday: the week began in 1993 */
    CHECK_STR(fmt("%U %W", &r), "00 00");
    r = at(1994, 1, 2, 0, 0, 0, 0, 1); /* a week starting on 2 January is week 0 */
    CHECK_STR(fmt("%U", &r), "00");
    r = at(1999, 1, 3, 0, 0, 0, 0, 2); /* one starting on 3 January is week 1 */
    CHECK_STR(fmt("%U", &r), "01");
    r = at(1999, 1, 4, 0, 0, 0, 1, 3);
    CHECK_STR(fmt("%W", &r), "01");

    t_section("size limits");
    struct tm y = at(1970, 1, 1, 0, 0, 0, 4, 0);
    const char *volatile empty = "";
    for (int i = 0; i < 16; ++i) out[i] = '#';
    CHECK_EQ(strftime(out, 5, "%Y", &y), 4);
    CHECK_MEM(out, 6, "1970\0#", 6);
    CHECK_EQ(strftime(out, 4, "%Y", &y), 0);
    CHECK_EQ(strftime(out, 3, "abc", &y), 0);
    CHECK_EQ(strftime(out, 4, "abc", &y), 3);
    CHECK_STR(out, "abc");
    CHECK_EQ(strftime(out, 6, "ab%Y", &y), 0); /* the conversion no longer fits */
    CHECK_EQ(strftime(out, 7, "ab%Y", &y), 6);
    for (int i = 0; i < 16; ++i) out[i] = '#';
    CHECK_EQ(strftime(out, 1, "x", &y), 0);
    CHECK_EQ(strftime(out, 0, empty, &y), 0);
    CHECK_EQ(out[0], '#'); /* nothing stored */
    CHECK_EQ(strftime(out, 1, empty, &y), 0);
    CHECK_EQ(out[0], 0);
    CHECK_EQ(strftime(out, 26, "%c", &y), 25);
    CHECK_EQ(strftime(out, 25, "%c", &y), 0);

    t_section("odd formats");
    CHECK_STR(fmt("ab%", &y), "ab"); /* a last % ends the format */
    CHECK_STR(fmt("<%Q>", &y), "<>"); /* an unknown conversion adds nothing */
    CHECK_STR(fmt("%Y%Q", &y), "1970");
    CHECK_STR(fmt("%Z%%%Z", &y), "%");
    return t_finish();
}

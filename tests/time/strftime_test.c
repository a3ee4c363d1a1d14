/* strftime: every conversion, the week numbers, the 12-hour clock, the
   digit rule, and the size limits. */
#include <time.h>

#include "harness.h"

static struct tm at(int year, int mon, int mday, int hour, int min, int sec, int wday, int yday) {
    struct tm r = {sec, min, hour, mday, mon - 1, year - 1900, wday, yday, 0, {0, 0}};
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
    struct tm epoch = at(1970, 1, 1, 0, 0, 0, 4, 0);
    char *text = asctime(&epoch);
    fmt("%c", &leap_day);
    CHECK_STR(text, "Sun Feb 29 13:05:09 2004\n"); /* %c goes through asctime's buffer */
    CHECK_STR(fmt("date: %d.%m.%Y", &leap_day), "date: 29.02.2004");

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

    t_section("12-hour clock");
    static const struct { int hour; const char *text; } clock12[] = {
        {0, "12 AM"}, {1, "01 AM"}, {11, "11 AM"}, {12, "12 PM"}, {13, "01 PM"}, {23, "11 PM"}};
    for (unsigned i = 0; i < sizeof clock12 / sizeof clock12[0]; ++i) {
        struct tm r = at(2000, 1, 1, clock12[i].hour, 0, 0, 6, 0);
        CHECK_STR(fmt("%I %p", &r), clock12[i].text);
    }

    t_section("one conversion at a time");
    const struct { int line; struct tm r; const char *format, *want; } cases[] = {
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "%x", "Thu Jan  1, 1970"},
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "%Y %y %j %w", "1970 70 001 4"},
        {__LINE__, at(2000, 9, 1, 0, 0, 0, 5, 244), "%a %b", "Fri Sep"},
        {__LINE__, at(2000, 1, 1, 12, 0, 0, 6, 0), "%X", "12:00:00 "},
        /* day of year and the digit rule, with out-of-range fields */
        {__LINE__, at(2000, 12, 31, 0, 0, 0, 0, 365), "%j", "366"},
        {__LINE__, at(2000, 1, 1, 0, 0, 0, 6, 0), "%y %w", "00 6"},
        {__LINE__, at(10123, 1, -3, -1, 7, 75, 0, 0), "%Y %d %H %M %S", "0123 00 00 07 75"},
        {__LINE__, at(1899, 1, 1, 0, 0, 0, 0, 0), "%y", "00"},
        /* week numbers; 1 January 1995 is a Sunday */
        {__LINE__, at(1995, 1, 1, 0, 0, 0, 0, 0), "%U %W", "00 00"},
        {__LINE__, at(1995, 1, 2, 0, 0, 0, 1, 1), "%U %W", "00 00"},
        {__LINE__, at(1995, 1, 8, 0, 0, 0, 0, 7), "%U %W", "01 00"},
        {__LINE__, at(1995, 1, 9, 0, 0, 0, 1, 8), "%U %W", "01 01"},
        /* Monday weeks: this one began on 25 December */
        {__LINE__, at(1995, 12, 31, 0, 0, 0, 0, 364), "%U %W", "52 51"},
        /* a Saturday: the week began in 1993 */
        {__LINE__, at(1994, 1, 1, 0, 0, 0, 6, 0), "%U %W", "00 00"},
        /* a week starting on 2 January is week 0, on 3 January week 1 */
        {__LINE__, at(1994, 1, 2, 0, 0, 0, 0, 1), "%U", "00"},
        {__LINE__, at(1999, 1, 3, 0, 0, 0, 0, 2), "%U", "01"},
        {__LINE__, at(1999, 1, 4, 0, 0, 0, 1, 3), "%W", "01"},
        /* a last % ends the format; an unknown conversion adds nothing */
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "ab%", "ab"},
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "<%Q>", "<>"},
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "%Y%Q", "1970"},
        {__LINE__, at(1970, 1, 1, 0, 0, 0, 4, 0), "%Z%%%Z", "%"},
    };
    for (unsigned i = 0; i < sizeof cases / sizeof cases[0]; ++i)
        t_check_str(fmt(cases[i].format, &cases[i].r), cases[i].want, cases[i].format, __FILE__,
                    cases[i].line);

    t_section("size limits");
    struct tm y = at(1970, 1, 1, 0, 0, 0, 4, 0);
    const char *volatile empty = "";
    t_memset(out, '#', 16);
    CHECK_EQ(strftime(out, 5, "%Y", &y), 4);
    CHECK_MEM(out, 6, "1970\0#", 6);
    CHECK_EQ(strftime(out, 4, "%Y", &y), 0);
    CHECK_EQ(strftime(out, 3, "abc", &y), 0);
    CHECK_EQ(strftime(out, 4, "abc", &y), 3);
    CHECK_STR(out, "abc");
    CHECK_EQ(strftime(out, 6, "ab%Y", &y), 0); /* the conversion no longer fits */
    CHECK_EQ(strftime(out, 7, "ab%Y", &y), 6);
    t_memset(out, '#', 16);
    CHECK_EQ(strftime(out, 1, "x", &y), 0);
    CHECK_EQ(strftime(out, 0, empty, &y), 0);
    CHECK_EQ(out[0], '#'); /* nothing stored */
    CHECK_EQ(strftime(out, 1, empty, &y), 0);
    CHECK_EQ(out[0], 0);
    CHECK_EQ(strftime(out, 26, "%c", &y), 25); /* 24 characters and the newline */
    CHECK_EQ(strftime(out, 25, "%c", &y), 0);

    return t_finish();
}

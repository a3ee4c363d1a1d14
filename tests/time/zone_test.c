/* Time zones: the stand-in's rules and state, and the calendar functions
   that apply the bias and the daylight shift in force now to every date. */
#include <time.h>

#include "harness.h"
#include "platform/kernel32.h"
#include "platform/linux/time_control.h"

/* Freezes the clock at a UTC date. */
static void clock_at(int y, int mon, int d, int h, int mi, int s) {
    SYSTEMTIME st = {0};
    st.wYear = (WORD)y, st.wMonth = (WORD)mon, st.wDay = (WORD)d;
    st.wHour = (WORD)h, st.wMinute = (WORD)mi, st.wSecond = (WORD)s;
    FILETIME ft;
    CHECK(SystemTimeToFileTime(&st, &ft));
    k32_set_clock(&ft);
}

static DWORD state(TIME_ZONE_INFORMATION *info) { return GetTimeZoneInformation(info); }

static DWORD state_at(int y, int mon, int d, int h, int mi, int s) {
    TIME_ZONE_INFORMATION info;
    clock_at(y, mon, d, h, mi, s);
    return state(&info);
}

static int wide_is(const WCHAR *w, const char *s) {
    for (; *s; ++w, ++s)
        if (*w != (unsigned char)*s) return 0;
    return *w == 0;
}

static void check_fields(const struct tm *r, int year, int mon, int mday, int hour, int min,
                         int sec, int wday, int yday, int isdst) {
    CHECK_EQ(r->tm_year + 1900, year);
    CHECK_EQ(r->tm_mon + 1, mon);
    CHECK_EQ(r->tm_mday, mday);
    CHECK_EQ(r->tm_hour, hour);
    CHECK_EQ(r->tm_min, min);
    CHECK_EQ(r->tm_sec, sec);
    CHECK_EQ(r->tm_wday, wday);
    CHECK_EQ(r->tm_yday, yday);
    CHECK_EQ(r->tm_isdst, isdst);
}

/* mktime(localtime(t)) gives t back for a spread of times. */
static int round_trips(void) {
    int bad = 0;
    for (long long t = -2114380800LL + 86400; t < 2145916799LL - 86400; t += 86400LL * 97 + 4321) {
        time_t s = (time_t)t;
        struct tm r = *localtime(&s);
        if (mktime(&r) != s) ++bad;
    }
    return bad;
}

int main(void) {
    TIME_ZONE_INFORMATION info;
    struct timezone zone;
    time_t t;

    t_section("daylight all year, bias 300");
    k32_set_time_zone("XST5XDT,J1/0,J365/25");
    clock_at(2021, 1, 15, 12, 0, 0); /* midwinter */
    CHECK_EQ(state(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(info.Bias, 300);
    CHECK_EQ(info.StandardBias, 0);
    CHECK_EQ(info.DaylightBias, -60);
    CHECK(wide_is(info.StandardName, "XST"));
    CHECK(wide_is(info.DaylightName, "XDT"));
    CHECK_EQ(state_at(2021, 12, 31, 23, 59, 59), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2020, 2, 29, 0, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2022, 1, 1, 4, 30, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(gettz(&zone), 0);
    CHECK_EQ(zone.tz_minuteswest, 300);
    CHECK_EQ(zone.tz_dsttime, 60);
    CHECK_EQ(_dstoff_(), 60);
    t = 0;
    check_fields(localtime(&t), 1969, 12, 31, 20, 0, 0, 3, 364, 60);
    CHECK_STR(ctime(&t), "Wed Dec 31 20:00:00 1969\n");
    t = 946701000; /* 2000-01-01 04:30 UTC: 23:30 standard, carried into the new year */
    check_fields(localtime(&t), 2000, 1, 1, 0, 30, 0, 6, 0, 60);
    t = 951800400; /* 2000-02-29 05:00 UTC */
    check_fields(localtime(&t), 2000, 2, 29, 1, 0, 0, 2, 59, 60);
    t = 951796800; /* 2000-02-29 04:00 UTC: 23:00 on the 28th, then midnight */
    check_fields(localtime(&t), 2000, 2, 29, 0, 0, 0, 2, 59, 60);
    t = 954478800; /* 2000-03-31 05:00 UTC */
    check_fields(localtime(&t), 2000, 3, 31, 1, 0, 0, 5, 90, 60);
    t = 954475200; /* 2000-03-31 04:00 UTC: into 1 April */
    check_fields(localtime(&t), 2000, 3, 31, 0, 0, 0, 5, 90, 60);
    t = 954561600; /* 2000-04-01 04:00 UTC */
    check_fields(localtime(&t), 2000, 4, 1, 0, 0, 0, 6, 91, 60);
    struct tm r = {0};
    r.tm_year = 69, r.tm_mon = 11, r.tm_mday = 31, r.tm_hour = 20;
    CHECK_EQ(mktime(&r), 0);
    check_fields(&r, 1969, 12, 31, 20, 0, 0, 3, 364, 60);
    CHECK_EQ(round_trips(), 0);

    t_section("no daylight saving");
    k32_set_time_zone("EST5");
    CHECK_EQ(state(&info), TIME_ZONE_ID_UNKNOWN);
    CHECK_EQ(info.Bias, 300);
    CHECK_EQ(info.DaylightBias, 0);
    CHECK_EQ(gettz(&zone), 0);
    CHECK_EQ(zone.tz_dsttime, 0);
    CHECK_EQ(_dstoff_(), 0);
    t = 0;
    check_fields(localtime(&t), 1969, 12, 31, 19, 0, 0, 3, 364, 0);
    r = *gmtime(&t);
    CHECK_EQ(mktime(&r), 18000);
    CHECK_EQ(round_trips(), 0);
    k32_set_time_zone("<+0330>-3:30");
    CHECK_EQ(state(&info), TIME_ZONE_ID_UNKNOWN);
    CHECK_EQ(info.Bias, -210);
    check_fields(localtime(&t), 1970, 1, 1, 3, 30, 0, 4, 0, 0);
    CHECK_EQ(round_trips(), 0);

    t_section("northern rules and their edges");
    k32_set_time_zone("EST5EDT"); /* default rule: March to November */
    CHECK_EQ(state_at(2021, 3, 14, 6, 59, 59), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2021, 3, 14, 7, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 11, 7, 5, 59, 59), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 11, 7, 6, 0, 0), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state(&info), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(info.DaylightDate.wYear, 0);
    CHECK_EQ(info.DaylightDate.wMonth, 3);
    CHECK_EQ(info.DaylightDate.wDay, 2);
    CHECK_EQ(info.DaylightDate.wDayOfWeek, 0);
    CHECK_EQ(info.DaylightDate.wHour, 2);
    CHECK_EQ(info.StandardDate.wMonth, 11);
    CHECK_EQ(info.StandardDate.wDay, 1);
    CHECK_EQ(info.StandardDate.wHour, 2);
    /* In standard time nothing is added, to this winter's dates or summer's. */
    CHECK_EQ(_dstoff_(), 0);
    t = 1593561600; /* 2020-07-01 00:00 UTC */
    check_fields(localtime(&t), 2020, 6, 30, 19, 0, 0, 2, 181, 0);
    clock_at(2021, 7, 1, 0, 0, 0); /* in summer, winter dates shift too */
    CHECK_EQ(_dstoff_(), 60);
    t = 0;
    check_fields(localtime(&t), 1969, 12, 31, 20, 0, 0, 3, 364, 60);
    CHECK_EQ(round_trips(), 0);
    k32_set_time_zone("CET-1CEST,M3.5.0,M10.5.0/3");
    CHECK_EQ(state_at(2021, 3, 28, 0, 59, 59), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2021, 3, 28, 1, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 10, 31, 0, 59, 59), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 10, 31, 1, 0, 0), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state(&info), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(info.Bias, -60);
    CHECK_EQ(info.StandardDate.wHour, 3);

    t_section("southern rules");
    k32_set_time_zone("AEST-10AEDT,M10.1.0,M4.1.0/3");
    CHECK_EQ(state_at(2021, 1, 15, 0, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 7, 15, 0, 0, 0), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2021, 4, 3, 15, 59, 59), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state_at(2021, 4, 3, 16, 0, 0), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2021, 10, 2, 15, 59, 59), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2021, 10, 2, 16, 0, 0), TIME_ZONE_ID_DAYLIGHT);

    t_section("day-of-year rules");
    k32_set_time_zone("AAA3BBB,59/0,300"); /* zero-based: day 59 of 2020 is 29 February */
    CHECK_EQ(state_at(2020, 2, 29, 2, 59, 59), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2020, 2, 29, 3, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    k32_set_time_zone("AAA3BBB,J60/0,J300"); /* never counts 29 February */
    CHECK_EQ(state_at(2020, 2, 29, 3, 0, 0), TIME_ZONE_ID_STANDARD);
    CHECK_EQ(state_at(2020, 3, 1, 3, 0, 0), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(state(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(info.DaylightDate.wYear, 2020);
    CHECK_EQ(info.DaylightDate.wMonth, 3);
    CHECK_EQ(info.DaylightDate.wDay, 1);
    CHECK_EQ(info.DaylightBias, -60);
    k32_set_time_zone("AAA3BBB2,J60/0,J300"); /* explicit daylight offset */
    CHECK_EQ(state(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(info.Bias, 180);
    CHECK_EQ(info.DaylightBias, -60);
    k32_set_time_zone("AAA3BBB1:30,J60/0,J300");
    CHECK_EQ(state(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK_EQ(info.DaylightBias, -90);
    CHECK_EQ(_dstoff_(), 90);

    t_section("what is not a rule is UTC");
    static const char *const bad[] = {"garbage!", "EST", "E5", "EST5EDT,M13.1.0,M11.1.0",
                                      "EST5EDT,M3.2.0", "EST25", ""};
    for (unsigned i = 0; i < sizeof bad / sizeof bad[0]; ++i) {
        k32_set_time_zone(bad[i]);
        CHECK_EQ(state(&info), TIME_ZONE_ID_UNKNOWN);
        CHECK_EQ(info.Bias, 0);
    }

    t_section("zone files");
    if (t_exists("/usr/share/zoneinfo/America/New_York")) {
        k32_set_time_zone("America/New_York");
        CHECK_EQ(state_at(2021, 7, 1, 0, 0, 0), TIME_ZONE_ID_DAYLIGHT);
        CHECK_EQ(state(&info), TIME_ZONE_ID_DAYLIGHT);
        CHECK_EQ(info.Bias, 300);
        CHECK_EQ(info.DaylightBias, -60);
        k32_set_time_zone(":America/New_York");
        CHECK_EQ(state_at(2021, 1, 1, 0, 0, 0), TIME_ZONE_ID_STANDARD);
        k32_set_time_zone("/usr/share/zoneinfo/America/New_York");
        CHECK_EQ(state(&info), TIME_ZONE_ID_STANDARD);
        CHECK_EQ(info.Bias, 300);
    } else {
        t_note("no zone files here: zone-file checks skipped");
    }
    k32_set_time_zone(":No/Such_Zone");
    CHECK_EQ(state(&info), TIME_ZONE_ID_UNKNOWN);
    CHECK_EQ(info.Bias, 0);

    t_section("a failing zone call");
    k32_set_time_zone("XST5XDT,J1/0,J365/25");
    k32_fail_time_zone(1, 1);
    zone.tz_minuteswest = 1234;
    CHECK_EQ(gettz(&zone), -1);
    CHECK_EQ(zone.tz_minuteswest, 1234); /* left alone */
    CHECK_EQ(gettz(&zone), 0);
    k32_fail_time_zone(1, 1);
    CHECK_EQ(_dstoff_(), 0);
    k32_fail_time_zone(1, 2); /* localtime's two calls: plain UTC */
    t = 0;
    check_fields(localtime(&t), 1970, 1, 1, 0, 0, 0, 4, 0, 0);
    k32_fail_time_zone(1, 100); /* mktime takes the fields as UTC */
    r = *gmtime(&t);
    r.tm_hour = 5;
    CHECK_EQ(mktime(&r), 5 * 3600);
    check_fields(&r, 1970, 1, 1, 5, 0, 0, 4, 0, 0);
    k32_fail_time_zone(0, 0);
    CHECK_EQ(gettz(&zone), 0);
    return t_finish();
}

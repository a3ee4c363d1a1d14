/* Time zones: the stand-in's rules and state, and the calendar functions
   that apply the bias and the daylight shift in force now to every date. */
#include <time.h>

#include "harness.h"
#include "platform/kernel32.h"
#include "platform/linux/time_control.h"
#include "timecheck.h"

#define ALL_YEAR "XST5XDT,J1/0,J365/25"

/* Freezes the clock at a UTC date. */
static void clock_at(int y, int mon, int d, int h, int mi, int s) {
    SYSTEMTIME st = {(WORD)y, (WORD)mon, 0, (WORD)d, (WORD)h, (WORD)mi, (WORD)s, 0};
    FILETIME ft;
    CHECK(SystemTimeToFileTime(&st, &ft));
    k32_set_clock(&ft);
}

static int wide_is(const WCHAR *w, const char *s) {
    for (; *s; ++w, ++s)
        if (*w != (unsigned char)*s) return 0;
    return *w == 0;
}

static const char *local_text(time_t t) { return text_of(localtime(&t)); }

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

#define CET "CET-1CEST,M3.5.0,M10.5.0/3"
#define AEST "AEST-10AEDT,M10.1.0,M4.1.0/3"
#define IST "IST-1GMT0,M10.5.0,M3.5.0/1"

static const struct {
    const char *rule;
    int y, mon, d, h, mi, s;
    DWORD state;
} states[] = {
    {ALL_YEAR, 2021, 1, 15, 12, 0, 0, 2}, {ALL_YEAR, 2021, 12, 31, 23, 59, 59, 2},
    {ALL_YEAR, 2020, 2, 29, 0, 0, 0, 2}, {ALL_YEAR, 2022, 1, 1, 4, 30, 0, 2},
    {"EST5", 2021, 7, 1, 0, 0, 0, 0},
    /* a dst name alone: second Sunday of March to first of November, 02:00 */
    {"EST5EDT", 2021, 3, 14, 6, 59, 59, 1}, {"EST5EDT", 2021, 3, 14, 7, 0, 0, 2},
    {"EST5EDT", 2021, 11, 7, 5, 59, 59, 2}, {"EST5EDT", 2021, 11, 7, 6, 0, 0, 1},
    {CET, 2021, 3, 28, 0, 59, 59, 1}, {CET, 2021, 3, 28, 1, 0, 0, 2},
    {CET, 2021, 10, 31, 0, 59, 59, 2}, {CET, 2021, 10, 31, 1, 0, 0, 1},
    /* southern: daylight across the turn of the year */
    {AEST, 2021, 1, 15, 0, 0, 0, 2}, {AEST, 2021, 7, 15, 0, 0, 0, 1},
    {AEST, 2021, 4, 3, 15, 59, 59, 2}, {AEST, 2021, 4, 3, 16, 0, 0, 1},
    {AEST, 2021, 10, 2, 15, 59, 59, 1}, {AEST, 2021, 10, 2, 16, 0, 0, 2},
    /* daylight time named behind standard: the period ahead counts as daylight */
    {IST, 2021, 1, 15, 0, 0, 0, 1}, {IST, 2021, 3, 28, 0, 59, 59, 1},
    {IST, 2021, 3, 28, 1, 0, 0, 2}, {IST, 2021, 10, 31, 0, 59, 59, 2},
    {IST, 2021, 10, 31, 1, 0, 0, 1},
    /* zero-based days count 29 February, J days never do */
    {"AAA3BBB,59/0,300", 2020, 2, 29, 2, 59, 59, 1}, {"AAA3BBB,59/0,300", 2020, 2, 29, 3, 0, 0, 2},
    {"AAA3BBB,J60/0,J300", 2020, 2, 29, 3, 0, 0, 1}, {"AAA3BBB,J60/0,J300", 2020, 3, 1, 3, 0, 0, 2},
};

int main(void) {
    TIME_ZONE_INFORMATION info;
    struct timezone zone;
    struct tm r;

    t_section("rules and the state they give");
    for (unsigned i = 0; i < sizeof states / sizeof states[0]; ++i) {
        k32_set_time_zone(states[i].rule);
        clock_at(states[i].y, states[i].mon, states[i].d, states[i].h, states[i].mi, states[i].s);
        if (GetTimeZoneInformation(&info) != states[i].state) {
            t_note(states[i].rule);
            CHECK_EQ(GetTimeZoneInformation(&info), states[i].state);
        }
    }
    k32_set_time_zone("EST5EDT");
    CHECK_EQ(GetTimeZoneInformation(&info), TIME_ZONE_ID_STANDARD); /* November, from above */
    const SYSTEMTIME *on = &info.DaylightDate, *off = &info.StandardDate;
    CHECK(on->wYear == 0 && on->wMonth == 3 && on->wDay == 2 && on->wDayOfWeek == 0 && on->wHour == 2);
    CHECK(off->wYear == 0 && off->wMonth == 11 && off->wDay == 1 && off->wHour == 2);
    k32_set_time_zone("AAA3BBB,J60/0,J300");
    CHECK_EQ(GetTimeZoneInformation(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK(on->wYear == 2020 && on->wMonth == 3 && on->wDay == 1); /* a date of this year */
    static const struct { const char *rule; LONG bias, daylight; } biases[] = {
        {"AAA3BBB2,J60/0,J300", 180, -60}, {"AAA3BBB1:30,J60/0,J300", 180, -90},
        {"<+0330>-3:30", -210, 0}, {CET, -60, -60}, {IST, 0, -60}};
    for (unsigned i = 0; i < sizeof biases / sizeof biases[0]; ++i) {
        k32_set_time_zone(biases[i].rule);
        GetTimeZoneInformation(&info);
        CHECK(info.Bias == biases[i].bias && info.DaylightBias == biases[i].daylight);
        CHECK_EQ(info.StandardBias, 0);
    }
    CHECK(wide_is(info.StandardName, "GMT") && wide_is(info.DaylightName, "IST"));
    static const char *const bad[] = {"garbage!", "XYZ", "E5", "EST5EDT,M13.1.0,M11.1.0",
                                      "EST5EDT,M3.2.0", "EST25", "", ":No/Such_Zone"};
    for (unsigned i = 0; i < sizeof bad / sizeof bad[0]; ++i) {
        k32_set_time_zone(bad[i]); /* what is not a rule is UTC */
        CHECK(GetTimeZoneInformation(&info) == TIME_ZONE_ID_UNKNOWN && info.Bias == 0);
    }
    if (t_exists("/usr/share/zoneinfo/America/New_York")) {
        static const char *const names[] = {"America/New_York", ":America/New_York",
                                            "/usr/share/zoneinfo/America/New_York"};
        for (unsigned i = 0; i < 3; ++i) {
            k32_set_time_zone(names[i]);
            clock_at(2021, 7, 1, 0, 0, 0);
            CHECK_EQ(GetTimeZoneInformation(&info), TIME_ZONE_ID_DAYLIGHT);
            CHECK(info.Bias == 300 && info.DaylightBias == -60);
            clock_at(2021, 1, 1, 0, 0, 0);
            CHECK_EQ(GetTimeZoneInformation(&info), TIME_ZONE_ID_STANDARD);
        }
        k32_set_time_zone("Etc/GMT+5"); /* a file shorter than the tail that is read */
        CHECK(GetTimeZoneInformation(&info) == TIME_ZONE_ID_UNKNOWN && info.Bias == 300);
    } else {
        t_note("no zone files here: zone-file checks skipped");
    }

    t_section("daylight all year, bias 300");
    k32_set_time_zone(ALL_YEAR);
    clock_at(2021, 1, 15, 12, 0, 0); /* midwinter */
    CHECK_EQ(GetTimeZoneInformation(&info), TIME_ZONE_ID_DAYLIGHT);
    CHECK(wide_is(info.StandardName, "XST") && wide_is(info.DaylightName, "XDT"));
    CHECK(gettz(&zone) == 0 && zone.tz_minuteswest == 300 && zone.tz_dsttime == 60);
    CHECK_EQ(_dstoff_(), 60);
    CHECK_STR(local_text(0), "1969-12-31 20:0:0 3 364 60");
    time_t t = 0;
    CHECK_STR(ctime(&t), "Wed Dec 31 20:00:00 1969\n");
    /* The added hour carries into the next day, month and year. */
    CHECK_STR(local_text(946701000), "2000-1-1 0:30:0 6 0 60");    /* from 1999-12-31 23:30 */
    CHECK_STR(local_text(951796800), "2000-2-29 0:0:0 2 59 60");   /* from 02-28 23:00 */
    CHECK_STR(local_text(954475200), "2000-3-31 0:0:0 5 90 60");   /* from 03-30 23:00 */
    CHECK_STR(local_text(954561600), "2000-4-1 0:0:0 6 91 60");    /* from 03-31 23:00 */
    CHECK_STR(local_text(951800400), "2000-2-29 1:0:0 2 59 60");
    r = (struct tm){0, 0, 20, 31, 11, 69, 0, 0, 0, {0, 0}};
    CHECK_EQ(mktime(&r), 0);
    CHECK_STR(text_of(&r), "1969-12-31 20:0:0 3 364 60");
    CHECK_EQ(round_trips(), 0);

    t_section("standard time and zones without daylight saving");
    k32_set_time_zone("EST5");
    CHECK(gettz(&zone) == 0 && zone.tz_minuteswest == 300 && zone.tz_dsttime == 0);
    CHECK_EQ(_dstoff_(), 0);
    CHECK_STR(local_text(0), "1969-12-31 19:0:0 3 364 0");
    r = *gmtime(&t);
    CHECK_EQ(mktime(&r), 18000);
    CHECK_EQ(round_trips(), 0);
    k32_set_time_zone("<+0330>-3:30");
    CHECK_STR(local_text(0), "1970-1-1 3:30:0 4 0 0");
    CHECK_EQ(round_trips(), 0);
    k32_set_time_zone("EST5EDT");
    clock_at(2021, 1, 15, 0, 0, 0); /* winter: summer dates are not shifted either */
    CHECK_EQ(_dstoff_(), 0);
    CHECK_STR(local_text(1593561600), "2020-6-30 19:0:0 2 181 0");
    clock_at(2021, 7, 1, 0, 0, 0); /* summer: winter dates are shifted too */
    CHECK_EQ(_dstoff_(), 60);
    CHECK_STR(local_text(0), "1969-12-31 20:0:0 3 364 60");
    CHECK_EQ(round_trips(), 0);

    t_section("a failing zone call");
    k32_set_time_zone(ALL_YEAR);
    k32_fail_time_zone(1, 1);
    zone.tz_minuteswest = 1234;
    CHECK(gettz(&zone) == -1 && zone.tz_minuteswest == 1234); /* left alone */
    CHECK_EQ(gettz(&zone), 0);
    k32_fail_time_zone(1, 1);
    CHECK_EQ(_dstoff_(), 0);
    k32_fail_time_zone(1, 2); /* localtime's two calls: plain UTC */
    CHECK_STR(local_text(0), "1970-1-1 0:0:0 4 0 0");
    k32_fail_time_zone(1, 100); /* mktime takes the fields as UTC */
    r = *gmtime(&t);
    r.tm_hour = 5;
    CHECK_EQ(mktime(&r), 5 * 3600);
    CHECK_STR(text_of(&r), "1970-1-1 5:0:0 4 0 0");
    k32_fail_time_zone(0, 0);
    CHECK_EQ(gettz(&zone), 0);
    return t_finish();
}

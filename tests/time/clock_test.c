/* The time sources on a frozen clock, and the file-time conversions of the
   stand-in and of the library. */
#include <time.h>

#include "clib/time/file_time.h"
#include "harness.h"
#include "platform/kernel32.h"
#include "platform/linux/time_control.h"

#define EPOCH 116444736000000000ULL

static FILETIME ft_of(unsigned long long v) { FILETIME ft = {(DWORD)v, (DWORD)(v >> 32)}; return ft; }
static unsigned long long value(FILETIME ft) {
    return ((unsigned long long)ft.dwHighDateTime << 32) | ft.dwLowDateTime;
}
static void freeze(unsigned long long v) { FILETIME ft = ft_of(v); k32_set_clock(&ft); }
static int convert(unsigned long long v, time_t *t) {
    FILETIME ft = ft_of(v);
    return ConvertTime(&ft, t);
}
static BOOL fields_of(unsigned long long v, SYSTEMTIME *st) {
    FILETIME ft = ft_of(v);
    return FileTimeToSystemTime(&ft, st);
}
/* The local file time of v, or ~0 when the call fails. */
static unsigned long long local_of(unsigned long long v) {
    FILETIME ft = ft_of(v), local;
    return FileTimeToLocalFileTime(&ft, &local) ? value(local) : ~0ULL;
}

static SYSTEMTIME date(int y, int mon, int d, int h, int mi, int s, int ms) {
    SYSTEMTIME st = {(WORD)y, (WORD)mon, 0, (WORD)d, (WORD)h, (WORD)mi, (WORD)s, (WORD)ms};
    return st;
}
/* The fields of a date and its day of the week. */
static int same_time(const SYSTEMTIME *st, SYSTEMTIME want, int day_of_week) {
    want.wDayOfWeek = (WORD)day_of_week;
    return t_memeq(st, &want, sizeof want);
}

/* ConvertTime(ConvertTimeInverse(t)) == t across mktime's range. */
static int file_round_trips(void) {
    int bad = 0;
    for (long long t = -2114380800LL + 86400; t < 2145916799LL - 86400; t += 86400LL * 89 + 7777) {
        time_t s = (time_t)t, back = 12345;
        FILETIME ft;
        if (!ConvertTimeInverse(&s, &ft) || value(ft) != EPOCH + (unsigned long long)(t * 10000000))
            ++bad;
        else if (!ConvertTime(&ft, &back) || back != s)
            ++bad;
    }
    return bad;
}

int main(void) {
    /* With the clock stopped at 1970, clock() is minus the start stamp: 0
       only if the start code never filled it. */
    t_section("the start code fills the start stamp");
    freeze(EPOCH);
    CHECK(clock() != 0);
    k32_set_clock(NULL);

    k32_set_time_zone("UTC0");

    t_section("seconds from the file time");
    /* 2.5 s truncated, toward zero, not -3; past 2038 the count wraps */
    static const struct { int line; unsigned long long ft; time_t t; } seconds[] = {
        {__LINE__, EPOCH, 0}, {__LINE__, EPOCH + 25000000, 2}, {__LINE__, EPOCH - 25000000, -2},
        {__LINE__, EPOCH + 2147483647ULL * 10000000 + 9999999, 2147483647},
        {__LINE__, EPOCH + 2147483648ULL * 10000000, -2147483647 - 1},
        {__LINE__, 0, (time_t)(unsigned long)(-11644473600LL)}};
    for (unsigned i = 0; i < sizeof seconds / sizeof seconds[0]; ++i) {
        time_t t = 99, u = 99, want = seconds[i].t;
        int line = seconds[i].line;
        freeze(seconds[i].ft);
        t_check_int(time(NULL), want, "time(NULL)", __FILE__, line);
        t_check(time(&t) == want && t == want, "time(&t)", __FILE__, line);
        t_check(_orv_time(&u) == want && u == want, "_orv_time(&u)", __FILE__, line);
    }

    t_section("clock");
    freeze(EPOCH + 1000000000ULL * 10000000 + 9000000); /* x.900 */
    __init_start_time();
    CHECK_EQ(clock(), 0);
    freeze(EPOCH + 1000000001ULL * 10000000 + 1000000); /* (x+1).100: milliseconds go down */
    CHECK_EQ(clock(), 200);
    freeze(EPOCH + 1000000002ULL * 10000000 + 4000000);
    CHECK_EQ(clock(), 1500);
    CHECK_EQ(CLOCKS_PER_SEC, 1000);
    k32_set_clock(NULL);
    struct { long sec, nsec; } kernel;
    long nr = 265, clock_realtime = 0; /* clock_gettime straight from the kernel */
    __asm__ volatile("int $0x80" : "+a"(nr) : "b"(clock_realtime), "c"(&kernel) : "memory");
    time_t now = time(NULL);
    CHECK(now - kernel.sec >= 0 && now - kernel.sec <= 2); /* the real clock again, one reading */

    t_section("stand-in calendar fields");
    SYSTEMTIME st;
    FILETIME ft, back;
    CHECK(fields_of(0, &st) && same_time(&st, date(1601, 1, 1, 0, 0, 0, 0), 1));
    CHECK(fields_of(EPOCH + 9999999, &st) && same_time(&st, date(1970, 1, 1, 0, 0, 0, 999), 4));
    SetLastError(0);
    CHECK(!fields_of(0x8000000000000000ULL, &st));
    CHECK_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    CHECK(fields_of(0x7FFFFFFFFFFFFFFFULL, &st) && st.wYear == 30828);
    st = date(2000, 2, 29, 23, 59, 59, 999);
    CHECK(SystemTimeToFileTime(&st, &ft));
    CHECK_HEX(value(ft), EPOCH + 951868799ULL * 10000000 + 9990000);
    st.wDayOfWeek = 77; /* ignored */
    CHECK(SystemTimeToFileTime(&st, &back));
    CHECK_HEX(value(back), value(ft));
    static const SYSTEMTIME bad[] = {
        {1900, 2, 0, 29, 0, 0, 0, 0}, {1600, 12, 0, 31, 0, 0, 0, 0}, {2000, 13, 0, 1, 0, 0, 0, 0},
        {2000, 0, 0, 1, 0, 0, 0, 0},  {2000, 4, 0, 31, 0, 0, 0, 0},  {2000, 1, 0, 0, 0, 0, 0, 0},
        {2000, 1, 0, 1, 24, 0, 0, 0}, {2000, 1, 0, 1, 0, 60, 0, 0},  {2000, 1, 0, 1, 0, 0, 60, 0},
        {2000, 1, 0, 1, 0, 0, 0, 1000}};
    for (unsigned i = 0; i < sizeof bad / sizeof bad[0]; ++i) CHECK(!SystemTimeToFileTime(&bad[i], &ft));
    int bad_trips = 0; /* fields and back, over four centuries of odd steps */
    for (unsigned long long v = 0; v < 0x0300000000000000ULL; v += 0x0000123456789ABCULL)
        bad_trips +=
            !fields_of(v, &st) || !SystemTimeToFileTime(&st, &back) || value(back) != v - v % 10000;
    CHECK_EQ(bad_trips, 0);
    freeze(EPOCH + 951868799ULL * 10000000 + 1234567);
    GetSystemTime(&st);
    CHECK(same_time(&st, date(2000, 2, 29, 23, 59, 59, 123), 2));
    GetSystemTimeAsFileTime(&ft);
    CHECK_HEX(value(ft), EPOCH + 951868799ULL * 10000000 + 1234567);

    t_section("local file times follow the offset in force now");
    k32_set_time_zone("XST5XDT,J1/0,J365/25");
    CHECK_HEX(local_of(EPOCH), EPOCH - 4ULL * 3600 * 10000000);
    back = ft_of(EPOCH - 4ULL * 3600 * 10000000);
    CHECK(LocalFileTimeToFileTime(&back, &ft) && value(ft) == EPOCH);
    GetLocalTime(&st);
    CHECK(same_time(&st, date(2000, 2, 29, 19, 59, 59, 123), 2));
    k32_set_time_zone("EST5EDT");
    freeze(EPOCH + 1610000000ULL * 10000000); /* January 2021: standard time */
    CHECK_HEX(local_of(EPOCH), EPOCH - 5ULL * 3600 * 10000000);

    t_section("ConvertTime and ConvertTimeInverse");
    k32_set_time_zone("UTC0");
    time_t t = 77;
    CHECK(convert(EPOCH + 25000000, &t) == 1 && t == 2);
    st = date(1900, 1, 1, 0, 0, 0, 0);
    t = 77;
    /* out of mktime's range: -1 is a success */
    CHECK(SystemTimeToFileTime(&st, &ft) && ConvertTime(&ft, &t) == 1 && t == -1);
    t = 77;
    CHECK(convert(0xFFFFFFFFFFFFFFFFULL, &t) == 0 && t == 77); /* no calendar fields for it */
    /* In UTC and zones west and east; the last rule's winter period is
       the one it names as daylight time, an hour behind its standard time. */
    static const char *const zones[] = {"UTC0", "EST5", "XST5XDT,J1/0,J365/25", "<+0530>-5:30",
                                        "CET-1CEST,M3.5.0,M10.5.0/3", "IST-1GMT0,M10.5.0,M3.5.0/1"};
    static const unsigned long long seasons[] = {1625140800ULL, 1610000000ULL}; /* July, January 2021 */
    for (unsigned i = 0; i < sizeof zones / sizeof zones[0]; ++i) {
        k32_set_time_zone(zones[i]);
        for (unsigned s = 0; s < 2; ++s) {
            freeze(EPOCH + seasons[s] * 10000000);
            t = 0;
            CHECK(ConvertTimeInverse(&t, &ft) && value(ft) == EPOCH); /* whatever the bias */
            CHECK(convert(EPOCH, &t) == 1 && t == 0);
            CHECK_EQ(file_round_trips(), 0);
        }
    }

    t_section("platform line");
    CHECK(IsWinNT() == 1 && GetVersion() >> 31 == 0);
    return t_finish();
}

#include "clib/time/file_time.h"

// A file time, read on the local clock of now, as time_t through mktime; a
// date out of mktime's range gives -1, which still counts as success.
extern "C" ORV_EXPORT int ConvertTime(const FILETIME *ft, time_t *t) {
    FILETIME local;
    if (!FileTimeToLocalFileTime(ft, &local)) return 0;
    SYSTEMTIME st;
    if (!FileTimeToSystemTime(&local, &st)) return 0;
    struct tm r = {};
    r.tm_sec = st.wSecond;
    r.tm_min = st.wMinute;
    r.tm_hour = st.wHour;
    r.tm_mday = st.wDay;
    r.tm_mon = st.wMonth - 1;
    r.tm_year = st.wYear - 1900;
    r.tm_wday = st.wDayOfWeek;
    r.tm_yday = 0;
    r.tm_isdst = -1;
    *t = mktime(&r);
    return 1;
}

extern "C" ORV_EXPORT int ConvertTimeInverse(const time_t *t, FILETIME *ft) {
    const struct tm *r = localtime(t);
    SYSTEMTIME st = {};
    st.wYear = static_cast<WORD>(r->tm_year + 1900);
    st.wMonth = static_cast<WORD>(r->tm_mon + 1);
    st.wDay = static_cast<WORD>(r->tm_mday);
    st.wHour = static_cast<WORD>(r->tm_hour);
    st.wMinute = static_cast<WORD>(r->tm_min);
    st.wSecond = static_cast<WORD>(r->tm_sec);
    FILETIME local;
    if (!SystemTimeToFileTime(&st, &local)) return 0;
    return LocalFileTimeToFileTime(&local, ft) ? 1 : 0;
}

// The NT line of systems keeps the top bit of the version clear.
extern "C" ORV_EXPORT int IsWinNT(void) { return (GetVersion() & 0x80000000UL) == 0; }

// Conversions between file times, local file times and calendar fields.
// The local offset is the one in force now, applied to every date, as
// GetTimeZoneInformation reports it.
#include "civil.h"
#include "last_error.h"
#include "time_zone.h"

using namespace orv::k32;

namespace {

std::uint64_t shift(std::uint64_t ticks, std::int64_t minutes) {
    return ticks + static_cast<std::uint64_t>(minutes * 60 * ticks_per_second);
}

bool valid(const SYSTEMTIME &st) {
    if (st.wYear < 1601 || st.wYear > 30827 || st.wMonth < 1 || st.wMonth > 12) return false;
    if (st.wDay < 1 || st.wDay > month_days(st.wYear, st.wMonth)) return false;
    return st.wHour < 24 && st.wMinute < 60 && st.wSecond < 60 && st.wMilliseconds < 1000;
}

} // namespace

extern "C" K32_API BOOL WINAPI FileTimeToLocalFileTime(const FILETIME *ft, FILETIME *local) {
    *local = make_filetime(shift(filetime_value(*ft), -std::int64_t{zone_bias_now()}));
    return 1;
}

extern "C" K32_API BOOL WINAPI LocalFileTimeToFileTime(const FILETIME *local, FILETIME *ft) {
    *ft = make_filetime(shift(filetime_value(*local), zone_bias_now()));
    return 1;
}

// The platform refuses file times with the top bit set.
extern "C" K32_API BOOL WINAPI FileTimeToSystemTime(const FILETIME *ft, SYSTEMTIME *st) {
    std::uint64_t v = filetime_value(*ft);
    if (v >> 63) return fail(ERROR_INVALID_PARAMETER, 0);
    std::int64_t ticks = static_cast<std::int64_t>(v) - epoch_1970_ticks;
    std::int64_t days = ticks / ticks_per_day;
    std::int64_t rest = ticks % ticks_per_day;
    if (rest < 0) rest += ticks_per_day, --days;
    Civil c = civil_from_days(days);
    st->wYear = static_cast<WORD>(c.year);
    st->wMonth = static_cast<WORD>(c.month);
    st->wDayOfWeek = static_cast<WORD>(c.weekday);
    st->wDay = static_cast<WORD>(c.day);
    std::int64_t ms = rest / 10000;
    st->wMilliseconds = static_cast<WORD>(ms % 1000);
    st->wSecond = static_cast<WORD>(ms / 1000 % 60);
    st->wMinute = static_cast<WORD>(ms / 60000 % 60);
    st->wHour = static_cast<WORD>(ms / 3600000);
    return 1;
}

// wDayOfWeek is ignored; every other field must be in range.
extern "C" K32_API BOOL WINAPI SystemTimeToFileTime(const SYSTEMTIME *st, FILETIME *ft) {
    if (!valid(*st)) return fail(ERROR_INVALID_PARAMETER, 0);
    std::int64_t days = days_from_civil(st->wYear, st->wMonth, st->wDay);
    std::int64_t ms = ((std::int64_t{st->wHour} * 60 + st->wMinute) * 60 + st->wSecond) * 1000 +
                      st->wMilliseconds;
    *ft = make_filetime(static_cast<std::uint64_t>(epoch_1970_ticks + days * ticks_per_day +
                                                   ms * 10000));
    return 1;
}

// Parsing and evaluating TZ-style zone rules.
#include "civil.h"
#include "time_zone.h"

namespace orv::k32 {

namespace {

bool is_alpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// A zone name: three or more letters, or anything in angle brackets.
bool parse_name(const char *&p, char (&name)[16]) {
    unsigned n = 0;
    if (*p == '<') {
        ++p;
        while (*p && *p != '>') {
            if (n < sizeof name - 1) name[n++] = *p;
            ++p;
        }
        if (*p != '>') return false;
        ++p;
    } else {
        while (is_alpha(*p)) {
            if (n < sizeof name - 1) name[n++] = *p;
            ++p;
        }
    }
    name[n] = 0;
    return n >= 3;
}

bool parse_number(const char *&p, long max, long &out) {
    if (!is_digit(*p)) return false;
    long v = 0;
    while (is_digit(*p)) {
        v = v * 10 + (*p++ - '0');
        if (v > max) return false;
    }
    out = v;
    return true;
}

// [+-]hh[:mm[:ss]] in seconds.
bool parse_time(const char *&p, long max_hours, long &out) {
    long sign = 1;
    if (*p == '+' || *p == '-') sign = *p++ == '-' ? -1 : 1;
    long h, m = 0, s = 0;
    if (!parse_number(p, max_hours, h)) return false;
    if (*p == ':') {
        ++p;
        if (!parse_number(p, 59, m)) return false;
        if (*p == ':') {
            ++p;
            if (!parse_number(p, 59, s)) return false;
        }
    }
    out = sign * (h * 3600 + m * 60 + s);
    return true;
}

bool parse_date(const char *&p, TzDate &d) {
    long a, b, c;
    d.time = 2 * 3600;
    if (*p == 'M') {
        ++p;
        if (!parse_number(p, 12, a) || a < 1 || *p++ != '.') return false;
        if (!parse_number(p, 5, b) || b < 1 || *p++ != '.') return false;
        if (!parse_number(p, 6, c)) return false;
        d = {'M', static_cast<int>(a), static_cast<int>(b), static_cast<int>(c), d.time};
    } else if (*p == 'J') {
        ++p;
        if (!parse_number(p, 365, a) || a < 1) return false;
        d = {'J', 0, 0, static_cast<int>(a), d.time};
    } else {
        if (!parse_number(p, 365, a)) return false;
        d = {'D', 0, 0, static_cast<int>(a), d.time};
    }
    if (*p == '/') {
        ++p;
        if (!parse_time(p, 167, d.time)) return false;
    }
    return true;
}

// Days from 1 January of `year` to the day the date names.
std::int64_t day_of_year(const TzDate &d, std::int64_t year) {
    switch (d.kind) {
    case 'J': return d.day - 1 + (is_leap(year) && d.day >= 60);
    case 'D': return d.day;
    default: {
        std::int64_t first = days_from_civil(year, d.month, 1);
        int first_wday = civil_from_days(first).weekday;
        int mday = 1 + (d.day - first_wday + 7) % 7 + (d.week - 1) * 7;
        while (mday > month_days(year, d.month)) mday -= 7;
        return first + mday - 1 - days_from_civil(year, 1, 1);
    }
    }
}

// The moment, in seconds since 1970 UTC, at which the date falls in `year`,
// read on a clock `offset` seconds behind UTC.
std::int64_t instant(const TzDate &d, std::int64_t year, long offset) {
    return (days_from_civil(year, 1, 1) + day_of_year(d, year)) * 86400 + d.time + offset;
}

// The calendar form of a period's start: recurring for a weekday rule at a
// time within the day, else the date it has this year.
SYSTEMTIME period_start(const TzDate &d, std::int64_t year) {
    SYSTEMTIME st{};
    if (d.kind == 'M' && d.time >= 0 && d.time < 86400) {
        st.wMonth = static_cast<WORD>(d.month);
        st.wDay = static_cast<WORD>(d.week);
        st.wDayOfWeek = static_cast<WORD>(d.day);
    } else {
        std::int64_t local = instant(d, year, 0);
        std::int64_t days = local / 86400 - (local % 86400 < 0);
        Civil c = civil_from_days(days);
        st.wYear = static_cast<WORD>(c.year);
        st.wMonth = static_cast<WORD>(c.month);
        st.wDay = static_cast<WORD>(c.day);
        st.wDayOfWeek = static_cast<WORD>(c.weekday);
    }
    long t = ((d.time % 86400) + 86400) % 86400;
    st.wHour = static_cast<WORD>(t / 3600);
    st.wMinute = static_cast<WORD>(t / 60 % 60);
    st.wSecond = static_cast<WORD>(t % 60);
    return st;
}

void widen(const char *from, WCHAR (&to)[32]) {
    unsigned i = 0;
    for (; from[i] && i < 31; ++i) to[i] = static_cast<unsigned char>(from[i]);
    for (; i < 32; ++i) to[i] = 0;
}

// A rule may name as daylight time a period behind its standard time
// (IST-1GMT0,M10.5.0,M3.5.0/1). The calendar functions take the daylight
// shift as a magnitude added to local time, so the period ahead becomes the
// daylight one; each switch stays on the clock it was read on, as the start
// is read on the standard clock and the end on the daylight one.
void put_daylight_ahead(TzRule &r) {
    if (!r.has_dst || r.dst_offset <= r.std_offset) return;
    TzRule swapped = r;
    for (unsigned i = 0; i < sizeof r.std_name; ++i) {
        swapped.std_name[i] = r.dst_name[i];
        swapped.dst_name[i] = r.std_name[i];
    }
    swapped.std_offset = r.dst_offset;
    swapped.dst_offset = r.std_offset;
    swapped.dst_start = r.dst_end;
    swapped.dst_end = r.dst_start;
    r = swapped;
}

bool parse_parts(const char *p, TzRule &r) {
    if (!parse_name(p, r.std_name) || !parse_time(p, 24, r.std_offset)) return false;
    if (*p == 0) return true;
    if (!parse_name(p, r.dst_name)) return false;
    r.has_dst = true;
    r.dst_offset = r.std_offset - 3600;
    if (*p && *p != ',' && !parse_time(p, 24, r.dst_offset)) return false;
    if (*p == 0) {
        // No rule given: the second Sunday of March to the first of November.
        r.dst_start = {'M', 3, 2, 0, 7200};
        r.dst_end = {'M', 11, 1, 0, 7200};
        return true;
    }
    if (*p++ != ',' || !parse_date(p, r.dst_start)) return false;
    if (*p++ != ',' || !parse_date(p, r.dst_end)) return false;
    return *p == 0;
}

} // namespace

bool parse_tz_rule(const char *p, TzRule &r) {
    r = TzRule{};
    if (!parse_parts(p, r)) return false;
    put_daylight_ahead(r);
    return true;
}

DWORD zone_info_at(const TzRule &r, std::int64_t now, TIME_ZONE_INFORMATION *info) {
    *info = TIME_ZONE_INFORMATION{};
    info->Bias = r.std_offset / 60;
    widen(r.std_name, info->StandardName);
    if (!r.has_dst) return TIME_ZONE_ID_UNKNOWN;
    widen(r.dst_name, info->DaylightName);
    info->DaylightBias = (r.dst_offset - r.std_offset) / 60;

    std::int64_t local = now - r.std_offset;
    std::int64_t year = civil_from_days(local / 86400 - (local % 86400 < 0)).year;
    info->DaylightDate = period_start(r.dst_start, year);
    info->StandardDate = period_start(r.dst_end, year);

    // Daylight time begins on the standard clock and ends on its own.
    std::int64_t start = instant(r.dst_start, year, r.std_offset);
    std::int64_t end = instant(r.dst_end, year, r.dst_offset);
    bool daylight = start < end ? (now >= start && now < end) : !(now >= end && now < start);
    return daylight ? TIME_ZONE_ID_DAYLIGHT : TIME_ZONE_ID_STANDARD;
}

} // namespace orv::k32

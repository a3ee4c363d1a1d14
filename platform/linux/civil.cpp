#include "civil.h"

namespace orv::k32 {

bool is_leap(std::int64_t y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int month_days(std::int64_t year, int month) {
    static constexpr unsigned char days[12] = {31, 28, 31, 30, 31, 30,
                                               31, 31, 30, 31, 30, 31};
    return month == 2 && is_leap(year) ? 29 : days[month - 1];
}

namespace {
// Floor division, so that dates before an era work like those after.
std::int64_t floor_div(std::int64_t a, std::int64_t b) {
    std::int64_t q = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}
} // namespace

// Counts in 400-year eras of 146097 days, with years starting in March so
// that the leap day comes last.
std::int64_t days_from_civil(std::int64_t y, int m, int d) {
    y -= m <= 2;
    std::int64_t era = floor_div(y, 400);
    std::int64_t yoe = y - era * 400;
    std::int64_t doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
    std::int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

Civil civil_from_days(std::int64_t z) {
    Civil c;
    c.weekday = static_cast<int>(((z + 4) % 7 + 7) % 7);  // 1970-01-01: Thursday
    z += 719468;
    std::int64_t era = floor_div(z, 146097);
    std::int64_t doe = z - era * 146097;
    std::int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    std::int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    std::int64_t mp = (5 * doy + 2) / 153;
    c.day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    c.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    c.year = yoe + era * 400 + (c.month <= 2);
    return c;
}

} // namespace orv::k32

#include <cstddef>

// The platform's records, to the byte.
static_assert(sizeof(FILETIME) == 8 && offsetof(FILETIME, dwHighDateTime) == 4);
static_assert(sizeof(SYSTEMTIME) == 16 && offsetof(SYSTEMTIME, wDayOfWeek) == 4 &&
              offsetof(SYSTEMTIME, wMilliseconds) == 14);
static_assert(sizeof(TIME_ZONE_INFORMATION) == 172 &&
              offsetof(TIME_ZONE_INFORMATION, StandardName) == 4 &&
              offsetof(TIME_ZONE_INFORMATION, StandardDate) == 68 &&
              offsetof(TIME_ZONE_INFORMATION, StandardBias) == 84 &&
              offsetof(TIME_ZONE_INFORMATION, DaylightName) == 88 &&
              offsetof(TIME_ZONE_INFORMATION, DaylightDate) == 152 &&
              offsetof(TIME_ZONE_INFORMATION, DaylightBias) == 168);

#include "clib/time/calendar.h"
#include "runtime/export.h"

namespace {
// The leap flag of the last year asked about.
constinit bool cached = false;
constinit int cached_year = 0;
constinit bool cached_leap = false;
} // namespace

extern "C" ORV_EXPORT int _dpmonth_(int month, int year) {
    if (!cached || year != cached_year) {
        cached_year = year;
        cached_leap = orv::cal::is_leap(std::int64_t{year} + 1900);
        cached = true;
    }
    return orv::cal::month_lengths[cached_leap][month];
}

#include "clib/time/calendar.h"
#include "clib/time/text.h"
#include "runtime/export.h"

namespace {
constinit char time_text[32] = {};
} // namespace

// "Thu Jan  1 00:00:00 1970\n": the fields must be in their ranges.
extern "C" ORV_EXPORT char *asctime(const struct tm *r) {
    using namespace orv::cal;
    TextOut out(time_text, sizeof time_text);
    out.text(short_day_names[r->tm_wday], 3).text(" ").text(short_month_names[r->tm_mon], 3);
    out.number(r->tm_mday, 3).text(" ").number(r->tm_hour, 0, 2).text(":");
    out.number(r->tm_min, 0, 2).text(":").number(r->tm_sec, 0, 2).text(" ");
    out.number(r->tm_year + 1900, 0).text("\n").finish(time_text);
    return time_text;
}

#include "clib/time/calendar.h"
#include "clib/time/text.h"
#include "runtime/export.h"

namespace {

using namespace orv::cal;

constexpr unsigned copy_limit = 127;

constexpr unsigned conversion_size = 128;
constinit char conversion_text[conversion_size] = {};
constinit char date_text[32] = {};
constinit char clock_text[32] = {};

// Week of the year, counting weeks that start on `first` (0 Sunday, 1
// Monday); days before the first such week fall in week 0.
int week_number(const struct tm &r, int first) {
    int into_week = (r.tm_wday - first + 7) % 7;
    return (r.tm_yday - into_week + 12) / 7 - 1;
}

int hour12(int hour) { return hour > 12 ? hour - 12 : hour == 0 ? 12 : hour; }

// Writes the text of conversion `c` into `to`. A character that names no
// conversion expands to nothing.
void expand(char c, const struct tm &r, char *to) {
    TextOut out(to, conversion_size);
    switch (c) {
    case 'a': out.text(short_day_names[r.tm_wday]); break;
    case 'A': out.text(day_names[r.tm_wday]); break;
    case 'b': out.text(short_month_names[r.tm_mon]); break;
    case 'B': out.text(month_names[r.tm_mon]); break;
    case 'c': out.text(asctime(&r)); break;
    case 'd': out.fixed(r.tm_mday, 2); break;
    case 'H': out.fixed(r.tm_hour, 2); break;
    case 'I': out.fixed(hour12(r.tm_hour), 2); break;
    case 'j': out.fixed(r.tm_yday + 1, 3); break;
    case 'm': out.fixed(r.tm_mon + 1, 2); break;
    case 'M': out.fixed(r.tm_min, 2); break;
    case 'p': out.text(r.tm_hour < 12 ? "AM" : "PM"); break;
    case 'S': out.fixed(r.tm_sec, 2); break;
    case 'U': out.fixed(week_number(r, 0), 2); break;
    case 'w': out.fixed(r.tm_wday, 1); break;
    case 'W': out.fixed(week_number(r, 1), 2); break;
    case 'x': {
        TextOut date(date_text, sizeof date_text);
        date.text(short_day_names[r.tm_wday], 3).text(" ").text(short_month_names[r.tm_mon], 3);
        date.number(r.tm_mday, 3).text(", ").number(r.tm_year + 1900, 0).finish(date_text);
        out.text(date_text, copy_limit);
        break;
    }
    case 'X': {
        TextOut clock(clock_text, sizeof clock_text);
        clock.number(r.tm_hour, 0, 2).text(":").number(r.tm_min, 0, 2).text(":");
        clock.number(r.tm_sec, 0, 2).text(" ").finish(clock_text);
        out.text(clock_text, copy_limit);
        break;
    }
    case 'y': out.fixed(r.tm_year % 100, 2); break;
    case 'Y': out.fixed(r.tm_year + 1900, 4); break;
    case '%': out.text("%"); break;
    default: break;  // %Z among them: no zone name is kept
    }
    out.finish(to);
}

unsigned length(const char *s) {
    unsigned n = 0;
    while (s[n] && n < copy_limit) ++n;
    return n;
}

} // namespace

extern "C" ORV_EXPORT size_t strftime(char *s, size_t maxsize, const char *format,
                                      const struct tm *r) {
    if (maxsize == 0) return 0;
    size_t n = 0;
    const char *f = format;
    if (maxsize > 1) {
        while (*f) {
            char c = *f++;
            if (c != '%') {
                s[n++] = c;
            } else if (*f) {
                expand(*f++, *r, conversion_text);
                unsigned len = length(conversion_text);
                if (len + 1 > maxsize - n) return 0;
                for (unsigned i = 0; i < len; ++i) s[n++] = conversion_text[i];
            }
            if (n >= maxsize - 1) break;
        }
    }
    if (*f) return 0;
    s[n] = 0;
    return n;
}

#include "include/stdlib.h"
#include "clib/number/integer_text.h"
#include "runtime/export.h"

#include <cstdint>

// The value accumulates negated, so that the most negative number fits.
extern "C" ORV_EXPORT long strtol(const char *text, char **end, int base) {
    auto in = orv::inttext::read_lead_in(text, base);
    const auto b = static_cast<std::int32_t>(in.base);
    const std::int32_t limit = INT32_MIN / b;
    std::int32_t acc = 0;
    bool overflow = false;
    const unsigned char *p = in.p;
    for (unsigned d; (d = orv::inttext::digit_value(*p)) < in.base; ++p) {
        in.digit_seen = true;
        if (overflow) continue; // the rest of the digits are still read
        if (acc < limit) {
            overflow = true;
            continue;
        }
        acc *= b;
        if (static_cast<std::int32_t>(d) + INT32_MIN <= acc)
            acc -= static_cast<std::int32_t>(d);
        else
            overflow = true;
    }
    orv::inttext::set_end(end, text, p, in.digit_seen);
    if (!overflow && !in.negative && acc == INT32_MIN) overflow = true;
    if (overflow) {
        errno = ERANGE;
        return in.negative ? INT32_MIN : INT32_MAX;
    }
    return in.negative ? acc : -acc;
}

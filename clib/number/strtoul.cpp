#include "include/stdlib.h"
#include "clib/number/integer_text.h"
#include "runtime/export.h"

#include <cstdint>

// A minus sign is taken and gives the two's complement of the value.
extern "C" ORV_EXPORT unsigned long strtoul(const char *text, char **end, int base) {
    auto in = orv::inttext::read_lead_in(text, base);
    const std::uint32_t limit = 0xFFFFFFFFu / in.base;
    std::uint32_t acc = 0;
    bool overflow = false;
    const unsigned char *p = in.p;
    for (unsigned d; (d = orv::inttext::digit_value(*p)) < in.base; ++p) {
        in.digit_seen = true;
        if (overflow) continue;
        if (acc > limit) {
            overflow = true;
            continue;
        }
        acc *= in.base;
        if (~d >= acc)
            acc += d;
        else
            overflow = true;
    }
    orv::inttext::set_end(end, text, p, in.digit_seen);
    if (overflow) {
        errno = ERANGE;
        acc = 0xFFFFFFFFu;
    }
    return in.negative ? 0u - acc : acc;
}

#include "include/string.h"
#include "runtime/export.h"

// The one locale has no collation of its own: this is strcmp on signed
// bytes, so 0x80 and above sort before "A".
extern "C" ORV_EXPORT int strcoll(const char *a, const char *b) {
    auto *x = reinterpret_cast<const signed char *>(a);
    auto *y = reinterpret_cast<const signed char *>(b);
    for (; *x == *y && *x != 0; ++x, ++y) {}
    return *x - *y;
}

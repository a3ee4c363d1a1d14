#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

// When both strings reach a word boundary together, equal words with no
// terminator are skipped whole; the bytes decide the rest.
extern "C" ORV_EXPORT int strcmp(const char *a, const char *b) {
    auto *x = reinterpret_cast<const unsigned char *>(a);
    auto *y = reinterpret_cast<const unsigned char *>(b);
    for (; !orv::scan::aligned(x); ++x, ++y)
        if (*x != *y || *x == 0) return *x - *y;
    if (orv::scan::aligned(y)) {
        auto *wx = reinterpret_cast<const orv::scan::word *>(x);
        auto *wy = reinterpret_cast<const orv::scan::word *>(y);
        while (*wx == *wy && !orv::scan::zero_bytes(*wx)) {
            ++wx;
            ++wy;
        }
        x = reinterpret_cast<const unsigned char *>(wx);
        y = reinterpret_cast<const unsigned char *>(wy);
    }
    for (; *x == *y && *x != 0; ++x, ++y) {}
    return *x - *y;
}

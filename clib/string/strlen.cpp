#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT size_t strlen(const char *s) {
    const char *p = s;
    for (; !orv::scan::aligned(p); ++p)
        if (*p == 0) return static_cast<size_t>(p - s);
    auto *w = reinterpret_cast<const orv::scan::word *>(p);
    while (!orv::scan::has_zero(*w)) ++w;
    for (p = reinterpret_cast<const char *>(w); *p != 0; ++p) {}
    return static_cast<size_t>(p - s);
}

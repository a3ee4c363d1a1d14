#include "include/string.h"
#include "clib/string/set.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT size_t strcspn(const char *s, const char *set) {
    const char *p = s;
    while (*p != 0 && !orv::charset::contains(set, *p)) ++p;
    return static_cast<size_t>(p - s);
}

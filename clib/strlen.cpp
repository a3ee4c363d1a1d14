#include "runtime/export.h"

#include <cstddef>

extern "C" ORV_EXPORT std::size_t strlen(const char *s) {
    const char *p = s;
    while (*p) ++p;
    return static_cast<std::size_t>(p - s);
}

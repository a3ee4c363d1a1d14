#include "include/string.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT int strncmp(const char *a, const char *b, size_t n) {
    auto *x = reinterpret_cast<const unsigned char *>(a);
    auto *y = reinterpret_cast<const unsigned char *>(b);
    for (; n != 0; --n, ++x, ++y)
        if (*x != *y || *x == 0) return *x - *y;
    return 0;
}

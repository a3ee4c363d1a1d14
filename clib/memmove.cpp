#include "runtime/export.h"

#include <cstddef>

extern "C" void *memcpy(void *, const void *, std::size_t);

// Overlapping with the destination above the source: copy from the end.
extern "C" ORV_EXPORT void *memmove(void *dst, const void *src, std::size_t n) {
    auto *d = static_cast<unsigned char *>(dst);
    auto *s = static_cast<const unsigned char *>(src);
    if (d <= s || d >= s + n) return memcpy(dst, src, n);
    while (n > 0) {
        --n;
        d[n] = s[n];
    }
    return dst;
}

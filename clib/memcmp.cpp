#include "runtime/export.h"

#include <cstddef>

extern "C" ORV_EXPORT int memcmp(const void *a, const void *b, std::size_t n) {
    auto *x = static_cast<const unsigned char *>(a);
    auto *y = static_cast<const unsigned char *>(b);
    for (std::size_t i = 0; i < n; ++i)
        if (x[i] != y[i]) return x[i] - y[i];
    return 0;
}

#include "include/string.h"
#include "clib/ctype/table.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT int strncasecmp(const char *a, const char *b, size_t n) {
    auto *x = reinterpret_cast<const unsigned char *>(a);
    auto *y = reinterpret_cast<const unsigned char *>(b);
    for (; n != 0; --n, ++x, ++y) {
        int p = orv::ctype::to_upper(*x), q = orv::ctype::to_upper(*y);
        if (p != q || p == 0) return p - q;
    }
    return 0;
}

#include "include/string.h"
#include "clib/ctype/table.h"
#include "runtime/export.h"

// Both sides go through toupper, so "a" against "B" gives -1.
extern "C" ORV_EXPORT int strcasecmp(const char *a, const char *b) {
    auto *x = reinterpret_cast<const unsigned char *>(a);
    auto *y = reinterpret_cast<const unsigned char *>(b);
    for (;; ++x, ++y) {
        int p = orv::ctype::to_upper(*x), q = orv::ctype::to_upper(*y);
        if (p != q || p == 0) return p - q;
    }
}

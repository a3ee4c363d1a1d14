#include "include/string.h"
#include "clib/string/scan.h"
#include "clib/string/wide.h"
#include "runtime/export.h"

extern "C" [[gnu::target("sse2")]] ORV_HIDDEN size_t __wide_strlen(const char *s) {
    using namespace orv::wide;
    return static_cast<size_t>(find(s, Zeros{}) - s);
}

extern "C" ORV_EXPORT size_t strlen(const char *s) {
    using namespace orv::scan;
    if (orv::wide::usable()) return __wide_strlen(s);
    const char *p = s;
    if (fits_block(s)) {
        if (const char *end = first_zero(s)) return static_cast<size_t>(end - s);
        p = next_block(s);
    } else {
        for (; !block_aligned(p); ++p)
            if (*p == 0) return static_cast<size_t>(p - s);
    }
    for (;; p += block)
        if (const char *end = first_zero(p)) return static_cast<size_t>(end - s);
}

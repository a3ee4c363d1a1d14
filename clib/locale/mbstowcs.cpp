#include "include/stdlib.h"
#include "runtime/export.h"

// The terminator is copied only when it falls within `len`.
extern "C" ORV_EXPORT size_t mbstowcs(wchar_t *dst, const char *src, unsigned len) {
    unsigned n = 0;
    while (src[n]) ++n;
    if (static_cast<int>(len) >= 1) {
        for (unsigned i = 0; i < len; ++i) {
            dst[i] = static_cast<wchar_t>(static_cast<signed char>(src[i]));
            if (src[i] == 0) break;
        }
    }
    return n < len ? n : len;
}

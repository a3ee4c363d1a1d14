#include "include/stdlib.h"
#include "runtime/export.h"

// Narrowing keeps the low byte, and the end is tested on that byte: 0x0100
// ends the text.
extern "C" ORV_EXPORT size_t wcstombs(char *dst, const wchar_t *src, unsigned len) {
    unsigned n = 0;
    if (static_cast<int>(len) >= 1) {
        for (; n < len; ++n) {
            dst[n] = static_cast<char>(src[n]);
            if (dst[n] == 0) break;
        }
    }
    return n;
}

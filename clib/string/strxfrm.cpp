#include "include/string.h"
#include "runtime/export.h"

// The identity transformation: a copy of at most n bytes, the terminator
// included if it fits. The count is signed: one above 0x7FFFFFFF writes
// nothing.
extern "C" ORV_EXPORT size_t strxfrm(char *dst, const char *src, size_t n) {
    size_t length = strlen(src);
    for (int left = static_cast<int>(n); left > 0; --left)
        if ((*dst++ = *src++) == 0) break;
    return length;
}

#include "include/string.h"
#include "runtime/export.h"

// At most n characters and always a terminator. The count is signed: one
// above 0x7FFFFFFF appends nothing.
extern "C" ORV_EXPORT char *strncat(char *dst, const char *src, size_t n) {
    int left = static_cast<int>(n);
    if (left <= 0) return dst;
    char *d = dst + strlen(dst);
    for (; left > 0 && *src != 0; --left) *d++ = *src++;
    *d = 0;
    return dst;
}

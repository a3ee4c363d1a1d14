#include "include/string.h"
#include "runtime/export.h"

// Pads with zeros up to n; a source of n characters or more gets no
// terminator. The count is signed: one above 0x7FFFFFFF writes nothing.
extern "C" ORV_EXPORT char *strncpy(char *dst, const char *src, size_t n) {
    char *d = dst;
    int left = static_cast<int>(n);
    for (; left > 0 && *src != 0; --left) *d++ = *src++;
    for (; left > 0; --left) *d++ = 0;
    return dst;
}

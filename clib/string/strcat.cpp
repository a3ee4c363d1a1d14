#include "include/string.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT char *strcat(char *dst, const char *src) {
    char *d = dst + strlen(dst);
    while ((*d++ = *src++) != 0) {}
    return dst;
}

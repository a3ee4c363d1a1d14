#include "include/stdlib.h"
#include "runtime/export.h"

// Every character is one byte. A negative count is not refused.
extern "C" ORV_EXPORT int mblen(const char *s, int n) {
    if (s == nullptr || *s == 0) return 0;
    return n != 0 ? 1 : -1;
}

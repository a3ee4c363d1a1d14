#include "include/stdlib.h"
#include "runtime/export.h"

// Only ASCII narrows back one character at a time.
extern "C" ORV_EXPORT int wctomb(char *s, wchar_t wc) {
    if (s == nullptr) return 0;
    if (wc > 127) return -1;
    *s = static_cast<char>(wc);
    return 1;
}

#include "include/stdlib.h"
#include "runtime/export.h"

// The byte widens as a signed char: 0xE9 becomes 0xFFE9.
extern "C" ORV_EXPORT int mbtowc(wchar_t *pwc, const char *s, unsigned n) {
    int r = mblen(s, static_cast<int>(n));
    if (pwc == nullptr || s == nullptr) return r;
    signed char c = static_cast<signed char>(*s);
    if (r < 1 && c != 0) return r;
    *pwc = static_cast<wchar_t>(c);
    return r;
}

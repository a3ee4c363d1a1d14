#include "include/string.h"
#include "runtime/export.h"

// The terminator counts as part of the string.
extern "C" ORV_EXPORT char *strrchr(const char *s, int ch) {
    char want = static_cast<char>(ch);
    const char *last = nullptr;
    for (;; ++s) {
        if (*s == want) last = s;
        if (*s == 0) return const_cast<char *>(last);
    }
}

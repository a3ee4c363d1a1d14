#include "include/string.h"
#include "runtime/export.h"

// Tries each starting place in turn; after a mismatch the next try begins
// one place on. An empty needle matches at once, even in an empty hay.
extern "C" ORV_EXPORT char *strstr(const char *hay, const char *needle) {
    for (;; ++hay) {
        const char *h = hay, *n = needle;
        while (*n != 0 && *h == *n) {
            ++h;
            ++n;
        }
        if (*n == 0) return const_cast<char *>(hay);
        if (*hay == 0) return nullptr;
    }
}

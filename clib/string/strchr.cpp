#include "include/string.h"
#include "runtime/export.h"

// The terminator can be found too.
extern "C" ORV_EXPORT char *strchr(const char *s, int ch) {
    char want = static_cast<char>(ch);
    for (;; ++s) {
        if (*s == want) return const_cast<char *>(s);
        if (*s == 0) return nullptr;
    }
}

#include "include/string.h"
#include "runtime/export.h"

namespace {
char *next_scan = nullptr; // where a call with a null string begins
}

extern "C" ORV_EXPORT char *strtok(char *s, const char *delims) {
    char *start = s != nullptr ? s : next_scan;
    if (start == nullptr) return nullptr;
    start += strspn(start, delims);
    if (*start == 0) {
        next_scan = nullptr;
        return nullptr;
    }
    char *end = strpbrk(start, delims);
    if (end == nullptr) {
        next_scan = nullptr;
    } else {
        *end = 0;
        next_scan = end + 1;
    }
    return start;
}

#include "include/string.h"
#include "clib/string/set.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT char *strpbrk(const char *s, const char *set) {
    for (; *s != 0; ++s)
        if (orv::charset::contains(set, *s)) return const_cast<char *>(s);
    return nullptr;
}

#include "include/string.h"
#include "runtime/export.h"

// The count is signed: one above 0x7FFFFFFF searches nothing.
extern "C" ORV_EXPORT void *memchr(const void *buf, int ch, size_t n) {
    auto *p = static_cast<const unsigned char *>(buf);
    auto want = static_cast<unsigned char>(ch);
    for (int left = static_cast<int>(n); left > 0; --left, ++p)
        if (*p == want) return const_cast<unsigned char *>(p);
    return nullptr;
}

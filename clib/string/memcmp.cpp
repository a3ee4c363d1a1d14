#include "include/string.h"
#include "clib/string/block.h"
#include "runtime/export.h"

// Equal words are skipped four bytes at a time; every read lies inside the
// two blocks, so no read can touch a page beyond them.
extern "C" ORV_EXPORT int memcmp(const void *a, const void *b, size_t len) {
    auto *x = static_cast<const unsigned char *>(a);
    auto *y = static_cast<const unsigned char *>(b);
    using word = orv::block::word;
    while (len >= 4 && *reinterpret_cast<const word *>(x) == *reinterpret_cast<const word *>(y)) {
        x += 4;
        y += 4;
        len -= 4;
    }
    for (; len != 0; --len, ++x, ++y)
        if (*x != *y) return *x - *y;
    return 0;
}

#include "include/string.h"
#include "clib/string/block.h"
#include "runtime/export.h"

// The direction follows the order of the addresses alone, compared as
// signed numbers, overlapping or not.
extern "C" ORV_EXPORT void *memmove(void *dst, const void *src, size_t len) {
    using orv::block::byte;
    if (len == 0 || dst == src) return dst;
    auto *d = static_cast<byte *>(dst);
    auto *s = static_cast<const byte *>(src);
    if (reinterpret_cast<std::intptr_t>(d) <= reinterpret_cast<std::intptr_t>(s))
        orv::block::copy_up(d, s, len);
    else
        orv::block::copy_down(d + len, s + len, len);
    return dst;
}

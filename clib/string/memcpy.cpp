#include "include/string.h"
#include "clib/string/block.h"
#include "runtime/export.h"

// Always upward, whatever the overlap: memmove is there for that.
extern "C" ORV_EXPORT void *memcpy(void *dst, const void *src, size_t len) {
    if (len != 0 && dst != src)
        orv::block::copy_up(static_cast<orv::block::byte *>(dst),
                            static_cast<const orv::block::byte *>(src), len);
    return dst;
}

#include "include/string.h"
#include "clib/string/block.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT void *memset(void *dst, int val, size_t len) {
    orv::block::fill(static_cast<orv::block::byte *>(dst), static_cast<orv::block::byte>(val), len);
    return dst;
}

// The heap's operations on blocks, whatever their path: small blocks from
// slabs, large ones as mappings of their own. The entry points add the
// platform's flags, fault injection and error codes on top. Allocation and
// freeing are inline so that a small block costs the entry point's frame
// and no more.
#pragma once

#include <cstdint>

#include "large.h"
#include "size_classes.h"
#include "slabs.h"
#include "small.h"

namespace orv::k32::heap {

// A new block and whether its bytes are known to be zero already.
inline void *fresh_block(std::uint32_t size, bool &clean) {
    if (size > small_max) return large_alloc(size, clean);
    unsigned cls = class_of(size);
    Guard g(heap_lock);
    return small_alloc(cls, clean);
}

// The bytes the block may use, at least what was asked for.
inline std::uint32_t block_size(const void *p) {
    const Slab &s = slabs[region_of(p)];
    if (s.flags & slab_live) return class_size(s.cls);
    return large_usable(p);
}

// A block of at least `size` bytes, zero-filled when `zero`; null when out
// of memory.
inline void *block_alloc(std::uint32_t size, bool zero) {
    bool clean;
    void *p = fresh_block(size, clean);
    if (p != nullptr && zero && !clean) __builtin_memset(p, 0, block_size(p));
    return p;
}

// False when `p` is not a block of this heap.
inline bool block_free(void *p) {
    {
        Guard g(heap_lock);
        std::uint32_t r = region_of(p);
        if (slabs[r].flags & slab_live) {
            small_free(p, r);
            return true;
        }
    }
    if (!large_valid(p)) return false;
    large_free(p);
    return true;
}

// The block resized to `size`, moved unless `in_place_only`, with the bytes
// beyond the old usable size zeroed when `zero`. Null when it cannot be
// done, the old block left as it was.
void *block_resize(void *p, std::uint32_t size, bool in_place_only, bool zero);

} // namespace orv::k32::heap

#include "block.h"

#include "large.h"
#include "size_classes.h"
#include "slabs.h"
#include "small.h"

namespace orv::k32::heap {

namespace {

bool is_small(const void *p) { return (slabs[region_of(p)].flags & slab_live) != 0; }

// A new block and whether its bytes are known to be zero already.
void *fresh_block(std::uint32_t size, bool &clean) {
    if (size > small_max) return large_alloc(size, clean);
    unsigned cls = class_of(size);
    Guard g(heap_lock);
    return small_alloc(cls, clean);
}

// Moves the block to a new one of `size` bytes; the old one is freed only
// once the new one exists.
void *move_block(void *p, std::uint32_t old_size, std::uint32_t size, bool zero) {
    bool clean;
    void *n = fresh_block(size, clean);
    if (n == nullptr) return nullptr;
    std::uint32_t keep = old_size < size ? old_size : size;
    __builtin_memcpy(n, p, keep);
    if (zero && !clean) {
        std::uint32_t usable = block_size(n);
        __builtin_memset(static_cast<char *>(n) + keep, 0, usable - keep);
    }
    block_free(p);
    return n;
}

} // namespace

void *block_alloc(std::uint32_t size, bool zero) {
    bool clean;
    void *p = fresh_block(size, clean);
    if (p != nullptr && zero && !clean) __builtin_memset(p, 0, block_size(p));
    return p;
}

bool block_free(void *p) {
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

std::uint32_t block_size(const void *p) {
    const Slab &s = slabs[region_of(p)];
    if (s.flags & slab_live) return class_size(s.cls);
    return large_usable(p);
}

void *block_resize(void *p, std::uint32_t size, bool in_place_only, bool zero) {
    std::uint32_t old_size = block_size(p);
    if (is_small(p)) {
        if (size > old_size) return in_place_only ? nullptr : move_block(p, old_size, size, zero);
        // Shrinking to under half the class moves down to give the room
        // back; failing that, the block simply stays.
        if (in_place_only || size > old_size / 2) return p;
        void *n = move_block(p, old_size, size, false);
        return n != nullptr ? n : p;
    }
    // A large block stays a mapping while it is large, or when it may not
    // move; the system zero-fills grown pages.
    if (size > small_max || in_place_only) return large_resize(p, size, !in_place_only);
    return move_block(p, old_size, size, zero);
}

} // namespace orv::k32::heap

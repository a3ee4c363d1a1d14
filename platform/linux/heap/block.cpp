#include "block.h"

namespace orv::k32::heap {

namespace {

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

void *block_resize(void *p, std::uint32_t size, bool in_place_only, bool zero) {
    std::uint32_t old_size = block_size(p);
    if (slabs[region_of(p)].flags & slab_live) {
        if (size > old_size) return in_place_only ? nullptr : move_block(p, old_size, size, zero);
        // Shrinking to under half the class moves down to give the room
        // back; failing that, the block simply stays.
        if (in_place_only || size > old_size / 2) return p;
        void *n = move_block(p, old_size, size, false);
        return n != nullptr ? n : p;
    }
    // A large block stays a mapping while it is large, or when it may not
    // move; the system zero-fills grown pages.
    if (size <= old_size && size > old_size / 2 && size > small_max) return p;
    if (size > small_max || in_place_only) return large_resize(p, size, !in_place_only, zero);
    return move_block(p, old_size, size, zero);
}

} // namespace orv::k32::heap

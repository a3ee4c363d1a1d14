// Blocks of up to one slab, by size class. Callers hold heap_lock. The
// common cases, a block from the current slab and a free that leaves its
// slab neither empty nor newly part-used, are inline; the rest is not.
#pragma once

#include <cstdint>

#include "../spinlock.h"
#include "size_classes.h"
#include "slabs.h"

namespace orv::k32::heap {

// One lock for the heap's shared state: uncontended it costs one exchange.
extern SpinLock heap_lock __attribute__((visibility("hidden")));

// A class allocates from its current slab; slabs that were full and have
// had a block freed wait on its list. Full slabs are on no list, empty ones
// go back at once, except the current slab, which stays to spare a churning
// class a slab exchange per call.
//
// In front of the slabs, each class keeps a short stack of its most
// recently freed blocks, still counted as used by their slabs: the next
// allocation gets memory that is likely still in the cache, and churn
// stays off the slab lists.
struct SizeClass {
    void *recent;
    std::uint16_t recent_count;
    std::uint16_t current;
    std::uint16_t partial;
    std::uint16_t unused;
};
extern SizeClass classes[class_count] __attribute__((visibility("hidden")));

// At most 32 blocks and 16 KiB a class.
struct RecentLimits {
    std::uint16_t count[class_count];
    constexpr RecentLimits() : count() {
        for (unsigned c = 0; c < class_count; ++c) {
            std::uint32_t n = 16384 / class_size(c);
            count[c] = static_cast<std::uint16_t>(n > 32 ? 32 : n);
        }
    }
};
inline constexpr RecentLimits recent_limits{};

// Hands out one block of a slab that has room.
inline void *carve(Slab &s, std::uint32_t size, bool &clean) {
    ++s.used;
    if (s.free != nullptr) {
        void *p = s.free;
        s.free = *static_cast<void **>(p);
        clean = false;
        return p;
    }
    char *p = s.bump;
    char *next = p + size;
    std::uint32_t offset = static_cast<std::uint32_t>(next - region_base(region_of(p)));
    s.bump = offset + size <= slab_bytes ? next : nullptr;
    clean = (s.flags & slab_fresh) != 0;
    return p;
}

// A block of class `cls` from a slab that is not current yet, or null.
void *small_alloc_slow(unsigned cls, bool &clean);

// A block of class `cls`, or null. `clean` tells whether its bytes are
// known to be zero (never used since they came from the system).
inline void *small_alloc(unsigned cls, bool &clean) {
    SizeClass &c = classes[cls];
    if (void *p = c.recent) {
        c.recent = *static_cast<void **>(p);
        --c.recent_count;
        clean = false;
        return p;
    }
    Slab &s = slabs[c.current];
    if (s.free != nullptr || s.bump != nullptr) return carve(s, class_size(cls), clean);
    return small_alloc_slow(cls, clean);
}

// Lists or releases a slab whose block was just freed.
void small_freed_slow(std::uint32_t r);

// Gives back a block of the live slab numbered `r`.
inline void small_free(void *p, std::uint32_t r) {
    Slab &s = slabs[r];
    SizeClass &c = classes[s.cls];
    if (c.recent_count < recent_limits.count[s.cls]) {
        *static_cast<void **>(p) = c.recent;
        c.recent = p;
        ++c.recent_count;
        return;
    }
    *static_cast<void **>(p) = s.free;
    s.free = p;
    --s.used;
    if (r == c.current || ((s.flags & slab_listed) && s.used != 0)) return;
    small_freed_slow(r);
}

} // namespace orv::k32::heap

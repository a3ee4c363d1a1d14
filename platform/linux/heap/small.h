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
extern SpinLock heap_lock;

// A class allocates from its current slab; slabs that were full and have
// had a block freed wait on its list. Full slabs are on no list, empty ones
// go back at once, except the current slab, which stays to spare a churning
// class a slab exchange per call.
struct SizeClass {
    std::uint16_t current;
    std::uint16_t partial;
};
extern SizeClass classes[class_count];

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
    Slab &s = slabs[classes[cls].current];
    if (s.free != nullptr || s.bump != nullptr) return carve(s, class_size(cls), clean);
    return small_alloc_slow(cls, clean);
}

// Lists or releases a slab whose block was just freed.
void small_freed_slow(std::uint32_t r);

// Gives back a block of the live slab numbered `r`.
inline void small_free(void *p, std::uint32_t r) {
    Slab &s = slabs[r];
    *static_cast<void **>(p) = s.free;
    s.free = p;
    --s.used;
    if (r == classes[s.cls].current || ((s.flags & slab_listed) && s.used != 0)) return;
    small_freed_slow(r);
}

} // namespace orv::k32::heap

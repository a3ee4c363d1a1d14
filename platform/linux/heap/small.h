// Blocks of up to one slab, by size class. Callers hold heap_lock.
#pragma once

#include <cstdint>

#include "../spinlock.h"

namespace orv::k32::heap {

// One lock for the heap's shared state: uncontended it costs one exchange.
extern SpinLock heap_lock;

// A block of class `cls`, or null. `clean` tells whether its bytes are
// known to be zero (never used since they came from the system).
void *small_alloc(unsigned cls, bool &clean);

// Gives back a block of the live slab numbered `r`.
void small_free(void *p, std::uint32_t r);

} // namespace orv::k32::heap

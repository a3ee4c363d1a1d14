// Slabs: 64 KiB-aligned regions, each carved into blocks of one size class.
// What the heap knows of a region lives out of line in a table indexed by
// address, so that a small block carries no header and free finds its
// class with one load.
#pragma once

#include <cstdint>

#include "size_classes.h"

namespace orv::k32::heap {

struct Slab {
    void *free;         // freed blocks, linked through their first word
    char *bump;         // next block never handed out, or null when none is left
    std::uint16_t next; // neighbours in the class's list of part-used slabs; 0 ends
    std::uint16_t prev;
    std::uint16_t used; // blocks handed out and not yet freed
    std::uint8_t cls;
    std::uint8_t flags;
};
static_assert(sizeof(Slab) == 16);

enum SlabFlag : std::uint8_t {
    slab_live = 1,   // the region is a slab in use by a class
    slab_fresh = 2,  // the region came straight from the system: its bump part is zero
    slab_listed = 4, // the slab is on its class's list of part-used slabs
};

inline constexpr std::uint32_t region_count = std::uint32_t{1} << (32 - slab_shift);

// Region 0 is never a slab, so its entry (all zero) doubles as "no slab".
extern Slab slabs[region_count] __attribute__((visibility("hidden")));

inline std::uint32_t region_of(const void *p) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(p) >> slab_shift);
}
inline char *region_base(std::uint32_t r) {
    return reinterpret_cast<char *>(static_cast<std::uintptr_t>(r) << slab_shift);
}

// A slab set up, empty, for class `cls`; 0 when the system has no memory.
std::uint32_t slab_take(unsigned cls);

// Takes back an emptied slab: kept in a small cache, or returned to the system.
void slab_release(std::uint32_t r);

} // namespace orv::k32::heap

#include "slabs.h"

#include "../syscall.h"

namespace orv::k32::heap {

constinit Slab slabs[region_count]{};

namespace {

// Slabs are cut from reserves of sixteen; untouched parts of a reserve cost
// address space only, no memory.
constexpr std::uint32_t reserve_bytes = 16 * slab_bytes;
constexpr std::uint32_t page = 4096;

// Emptied slabs kept for reuse before they go back to the system, so that
// a program that frees and allocates in waves does not pay page faults for
// every wave: up to half the most slabs ever in use, and a few besides.
// They are reused before any new slab, so they never raise the peak.
constexpr unsigned cache_capacity = 1024;
constexpr unsigned cache_floor = 16;

constinit std::uintptr_t reserve_next = 0;
constinit std::uintptr_t reserve_end = 0;
constinit std::uint16_t cache[cache_capacity]{};
constinit unsigned cached = 0;
constinit unsigned live = 0;
constinit unsigned peak = 0;

unsigned cache_limit() { return cache_floor + peak / 2; }

// The system aligns mappings to pages only: map one slab less a page more
// than needed, then trim both ends to a slab-aligned run.
bool refill_reserve() {
    constexpr std::uint32_t span = reserve_bytes + slab_bytes - page;
    void *raw = sys::mmap_anon(span);
    if (raw == nullptr) return false;
    std::uintptr_t lo = reinterpret_cast<std::uintptr_t>(raw);
    std::uintptr_t start = (lo + slab_bytes - 1) & ~std::uintptr_t{slab_bytes - 1};
    std::uintptr_t end = start + reserve_bytes;
    if (start > lo) sys::munmap(raw, static_cast<std::uint32_t>(start - lo));
    if (lo + span > end)
        sys::munmap(reinterpret_cast<void *>(end), static_cast<std::uint32_t>(lo + span - end));
    reserve_next = start;
    reserve_end = end;
    return true;
}

} // namespace

std::uint32_t slab_take(unsigned cls) {
    std::uint32_t r;
    std::uint8_t fresh = 0;
    if (cached > 0) {
        r = cache[--cached];
    } else {
        if (reserve_next == reserve_end && !refill_reserve()) return 0;
        r = static_cast<std::uint32_t>(reserve_next >> slab_shift);
        reserve_next += slab_bytes;
        fresh = slab_fresh;
    }
    if (++live > peak) peak = live;
    Slab &s = slabs[r];
    s.free = nullptr;
    s.bump = region_base(r);
    s.next = s.prev = 0;
    s.used = 0;
    s.cls = static_cast<std::uint8_t>(cls);
    s.flags = static_cast<std::uint8_t>(slab_live | fresh);
    return r;
}

void slab_release(std::uint32_t r) {
    slabs[r] = Slab{};
    --live;
    if (cached < cache_capacity && cached < cache_limit()) {
        cache[cached++] = static_cast<std::uint16_t>(r);
        return;
    }
    sys::munmap(region_base(r), slab_bytes);
    // A cache that outgrew its share, the program having shrunk, sheds
    // one more slab each time.
    if (cached > cache_limit()) sys::munmap(region_base(cache[--cached]), slab_bytes);
}

} // namespace orv::k32::heap

#include "large.h"

#include "../syscall.h"
#include "small.h"

namespace orv::k32::heap {

namespace {

struct Header {
    std::uint32_t mapped; // bytes of the block's pages, header included
    std::uint32_t magic;
    std::uint32_t pad[2];
};
static_assert(sizeof(Header) == 16);

constexpr std::uint32_t page = 4096;
constexpr std::uint32_t magic = 0x6F72764Cu;

// Freed pages kept for reuse: a program that allocates large blocks in
// turn would otherwise pay a system call and a page fault for every page
// of every one. Kept runs that touch are one run, so freed neighbours give
// room to bigger blocks and a block can grow into the run behind it. The
// kept bytes stay within half the peak of those in use, plus a floor, and
// are shed when new memory has to be mapped, so they add little to the
// peak. A freed block of a very big mapping is never kept.
constexpr unsigned keep_slots = 128;
constexpr std::uint32_t keep_floor = 4u << 20;
constexpr std::uint32_t keep_max_mapping = 4u << 20;

struct Run {
    char *start;
    std::uint32_t bytes;
};

constinit Run kept[keep_slots]{};
constinit unsigned kept_count = 0;
constinit std::uint32_t kept_bytes = 0;
constinit std::uint32_t live_bytes = 0;
constinit std::uint32_t peak_bytes = 0;

// The pages for `size` bytes, or 0 when the rounding would overflow.
std::uint32_t mapping_for(std::uint32_t size) {
    if (size > 0xFFFFFFFFu - sizeof(Header) - (page - 1)) return 0;
    return (size + sizeof(Header) + page - 1) & ~(page - 1);
}

Header *header_of(const void *p) {
    return const_cast<Header *>(static_cast<const Header *>(p)) - 1;
}

char *end_of(const Run &r) { return r.start + r.bytes; }

// The rest of this namespace runs under heap_lock.

void add_live(std::uint32_t bytes) {
    live_bytes += bytes;
    if (live_bytes > peak_bytes) peak_bytes = live_bytes;
}

void drop_run(unsigned i) {
    kept_bytes -= kept[i].bytes;
    kept[i] = kept[--kept_count];
}

// The kept run that starts at `at`, or keep_slots.
unsigned run_at(const char *at) {
    for (unsigned i = 0; i < kept_count; ++i)
        if (kept[i].start == at) return i;
    return keep_slots;
}

// The first `bytes` of kept run `i` taken off it; the rest stays kept.
char *cut(unsigned i, std::uint32_t bytes) {
    char *p = kept[i].start;
    kept[i].start += bytes;
    kept[i].bytes -= bytes;
    kept_bytes -= bytes;
    if (kept[i].bytes == 0) kept[i] = kept[--kept_count];
    return p;
}

// The front of the smallest kept run that holds `bytes`, or null.
char *take_kept(std::uint32_t bytes) {
    unsigned best = keep_slots;
    for (unsigned i = 0; i < kept_count; ++i)
        if (kept[i].bytes >= bytes && (best == keep_slots || kept[i].bytes < kept[best].bytes)) best = i;
    return best == keep_slots ? nullptr : cut(best, bytes);
}

// The largest kept run, off the list; there is one.
Run take_largest() {
    unsigned best = 0;
    for (unsigned i = 1; i < kept_count; ++i)
        if (kept[i].bytes > kept[best].bytes) best = i;
    Run r = kept[best];
    drop_run(best);
    return r;
}

// Whether freed pages join the kept ones, merged with kept neighbours on
// either side.
bool keep(char *start, std::uint32_t bytes) {
    if (kept_bytes + bytes > keep_floor + peak_bytes / 2) return false;
    Run run{start, bytes};
    unsigned merged = 0;
    for (unsigned i = 0; i < kept_count;) {
        if (end_of(kept[i]) == run.start || end_of(run) == kept[i].start) {
            if (kept[i].start < run.start) run.start = kept[i].start;
            run.bytes += kept[i].bytes;
            drop_run(i);
            ++merged;
        } else {
            ++i;
        }
    }
    if (merged == 0 && kept_count == keep_slots) return false;
    kept[kept_count++] = run;
    kept_bytes += run.bytes;
    return true;
}

// The last `bytes` of kept run `i`, or all of it when smaller, off the
// list; answers what was taken.
Run shed_from(unsigned i, std::uint32_t bytes) {
    if (kept[i].bytes <= bytes) {
        Run r = kept[i];
        drop_run(i);
        return r;
    }
    kept[i].bytes -= bytes;
    kept_bytes -= bytes;
    return Run{end_of(kept[i]), bytes};
}

} // namespace

namespace {

// When new memory has to come from the system, kept pages that could not
// serve go back to it, as many as are new: a pattern the kept pages do not
// fit then does not add them to the footprint.
void shed_kept(std::uint32_t bytes) {
    while (bytes > 0) {
        Run r;
        {
            Guard g(heap_lock);
            if (kept_count == 0) return;
            r = shed_from(kept_count - 1, bytes);
        }
        sys::munmap(r.start, r.bytes);
        bytes -= r.bytes;
    }
}

// Pages leaving a block: kept, or back to the system.
void release(char *start, std::uint32_t bytes) {
    {
        Guard g(heap_lock);
        live_bytes -= bytes;
        if (bytes <= keep_max_mapping && keep(start, bytes)) return;
    }
    sys::munmap(start, bytes);
}

void *as_block(void *pages, std::uint32_t bytes) {
    auto *h = static_cast<Header *>(pages);
    h->mapped = bytes;
    h->magic = magic;
    return h + 1;
}

// Pages for a new block, kept ones first; `clean` tells whether they are
// fresh from the system. When no kept run holds the block, the largest one
// is stretched to its size, so that only the pages it lacks are new.
void *pages_for(std::uint32_t bytes, bool &clean) {
    Run largest{nullptr, 0};
    {
        Guard g(heap_lock);
        if (char *p = take_kept(bytes)) {
            add_live(bytes);
            clean = false;
            return p;
        }
        if (kept_count != 0) largest = take_largest();
    }
    shed_kept(bytes - largest.bytes);
    void *p = nullptr;
    if (largest.bytes != 0) {
        p = sys::mremap(largest.start, largest.bytes, bytes, sys::mremap_maymove);
        // A run of two mappings cannot be stretched as one.
        if (p == nullptr) sys::munmap(largest.start, largest.bytes);
    }
    clean = p == nullptr;
    if (p == nullptr && (p = sys::mmap_anon(bytes)) == nullptr) return nullptr;
    Guard g(heap_lock);
    add_live(bytes);
    return p;
}

// Grows the block over the kept run right behind it, when that run is big
// enough: no system call, no copy.
bool grow_into_neighbour(Header *h, std::uint32_t bytes) {
    std::uint32_t need = bytes - h->mapped;
    Guard g(heap_lock);
    unsigned i = run_at(reinterpret_cast<char *>(h) + h->mapped);
    if (i == keep_slots || kept[i].bytes < need) return false;
    cut(i, need);
    add_live(need);
    h->mapped = bytes;
    return true;
}

// The block moved to `pages`, of `bytes`, its old pages released.
void *move_block(void *p, void *pages, std::uint32_t bytes, bool clean, bool zero) {
    std::uint32_t was = header_of(p)->mapped;
    void *n = as_block(pages, bytes);
    __builtin_memcpy(n, p, was - sizeof(Header));
    if (zero && !clean) __builtin_memset(static_cast<char *>(pages) + was, 0, bytes - was);
    large_free(p);
    return n;
}

} // namespace

void *large_alloc(std::uint32_t size, bool &clean) {
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    void *pages = pages_for(bytes, clean);
    return pages != nullptr ? as_block(pages, bytes) : nullptr;
}

bool large_valid(const void *p) {
    return (reinterpret_cast<std::uintptr_t>(p) & (page - 1)) == sizeof(Header) &&
           header_of(p)->magic == magic;
}

void large_free(void *p) {
    Header *h = header_of(p);
    h->magic = 0;
    release(reinterpret_cast<char *>(h), h->mapped);
}

std::uint32_t large_usable(const void *p) { return header_of(p)->mapped - sizeof(Header); }

void *large_resize(void *p, std::uint32_t size, bool may_move, bool zero) {
    Header *h = header_of(p);
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    std::uint32_t old = h->mapped;
    if (bytes <= old) {
        if (bytes < old) {
            h->mapped = bytes;
            release(reinterpret_cast<char *>(h) + bytes, old - bytes);
        }
        return p;
    }
    if (grow_into_neighbour(h, bytes)) {
        if (zero) __builtin_memset(reinterpret_cast<char *>(h) + old, 0, bytes - old);
        return p;
    }
    // Kept pages cost a copy of memory already in hand; growing the mapping
    // costs a page fault for every new page.
    if (may_move) {
        void *pages;
        {
            Guard g(heap_lock);
            if ((pages = take_kept(bytes)) != nullptr) add_live(bytes);
        }
        if (pages != nullptr) return move_block(p, pages, bytes, false, zero);
    }
    shed_kept(bytes - old);
    auto *n = static_cast<Header *>(sys::mremap(h, old, bytes, may_move ? long{sys::mremap_maymove} : 0L));
    if (n == nullptr) {
        // A block cut from kept runs of two mappings cannot be resized as
        // one by the system: it moves to fresh pages.
        if (!may_move) return nullptr;
        bool clean;
        void *pages = pages_for(bytes, clean);
        return pages != nullptr ? move_block(p, pages, bytes, clean, zero) : nullptr;
    }
    n->mapped = bytes;
    Guard g(heap_lock);
    add_live(bytes - old);
    return n + 1;
}

} // namespace orv::k32::heap

#include "large.h"

#include "../syscall.h"
#include "small.h"

namespace orv::k32::heap {

namespace {

struct Header {
    std::uint32_t mapped; // bytes of the mapping, header included
    std::uint32_t magic;
    std::uint32_t pad[2];
};
static_assert(sizeof(Header) == 16);

constexpr std::uint32_t page = 4096;
constexpr std::uint32_t magic = 0x6F72764Cu;

// Freed mappings kept for reuse: a program that allocates large blocks in
// turn would otherwise pay a mapping and page faults for every one. Memory
// kept is memory the program has held before, so it adds little to the
// peak: the kept bytes stay within half the peak of those in use, plus a
// floor, and are shed when new memory has to be mapped. Very big mappings
// are never kept.
constexpr unsigned keep_slots = 128;
constexpr std::uint32_t keep_floor = 4u << 20;
constexpr std::uint32_t keep_max_mapping = 4u << 20;

struct Kept {
    Header *h;
    std::uint32_t bytes;
};

constinit Kept kept[keep_slots]{};
constinit unsigned kept_count = 0;
constinit std::uint32_t kept_bytes = 0;
constinit std::uint32_t live_bytes = 0;
constinit std::uint32_t peak_bytes = 0;

// The mapping for `size` bytes, or 0 when the rounding would overflow.
std::uint32_t mapping_for(std::uint32_t size) {
    if (size > 0xFFFFFFFFu - sizeof(Header) - (page - 1)) return 0;
    return (size + sizeof(Header) + page - 1) & ~(page - 1);
}

Header *header_of(const void *p) {
    return const_cast<Header *>(static_cast<const Header *>(p)) - 1;
}

// The smallest kept mapping of at least `bytes`, taken off the list; null
// when none fits. Caller holds heap_lock.
Header *take_kept(std::uint32_t bytes, std::uint32_t &have) {
    unsigned best = keep_slots;
    for (unsigned i = 0; i < kept_count; ++i)
        if (kept[i].bytes >= bytes && (best == keep_slots || kept[i].bytes < kept[best].bytes))
            best = i;
    if (best == keep_slots) return nullptr;
    Header *h = kept[best].h;
    have = kept[best].bytes;
    kept[best] = kept[--kept_count];
    kept_bytes -= have;
    return h;
}

// Whether a freed mapping of `bytes` joins the kept ones. Caller holds
// heap_lock.
bool keep(Header *h, std::uint32_t bytes) {
    if (kept_count == keep_slots || bytes > keep_max_mapping) return false;
    if (kept_bytes + bytes > keep_floor + peak_bytes / 2) return false;
    kept[kept_count++] = Kept{h, bytes};
    kept_bytes += bytes;
    return true;
}

// When new memory has to come from the system, kept mappings that could
// not serve go back to it, as many bytes as are new: a pattern the kept
// ones do not fit then does not add them to the footprint.
void shed_kept(std::uint32_t bytes) {
    while (bytes > 0) {
        Kept k;
        {
            Guard g(heap_lock);
            if (kept_count == 0) return;
            k = kept[--kept_count];
            kept_bytes -= k.bytes;
        }
        sys::munmap(k.h, k.bytes);
        bytes = k.bytes < bytes ? bytes - k.bytes : 0;
    }
}

} // namespace

namespace {

// A kept mapping of at least `bytes` set up as a block, or null.
Header *reuse_kept(std::uint32_t bytes) {
    std::uint32_t have = 0;
    Header *h;
    {
        Guard g(heap_lock);
        h = take_kept(bytes, have);
        if (h == nullptr) return nullptr;
        live_bytes += have;
        if (live_bytes > peak_bytes) peak_bytes = live_bytes;
    }
    // A kept mapping far bigger than needed is split, its tail kept apart.
    if (have / 2 > bytes) {
        auto *tail = reinterpret_cast<Header *>(reinterpret_cast<char *>(h) + bytes);
        std::uint32_t rest = have - bytes;
        have = bytes;
        bool kept_tail;
        {
            Guard g(heap_lock);
            live_bytes -= rest;
            kept_tail = keep(tail, rest);
        }
        if (!kept_tail) sys::munmap(tail, rest);
    }
    h->mapped = have;
    h->magic = magic;
    return h;
}

} // namespace

void *large_alloc(std::uint32_t size, bool &clean) {
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    if (Header *h = reuse_kept(bytes)) {
        clean = false;
        return h + 1;
    }
    shed_kept(bytes);
    auto *h = static_cast<Header *>(sys::mmap_anon(bytes));
    if (h == nullptr) return nullptr;
    {
        Guard g(heap_lock);
        live_bytes += bytes;
        if (live_bytes > peak_bytes) peak_bytes = live_bytes;
    }
    h->mapped = bytes;
    h->magic = magic;
    clean = true;
    return h + 1;
}

bool large_valid(const void *p) {
    return (reinterpret_cast<std::uintptr_t>(p) & (page - 1)) == sizeof(Header) &&
           header_of(p)->magic == magic;
}

void large_free(void *p) {
    Header *h = header_of(p);
    std::uint32_t bytes = h->mapped;
    h->magic = 0;
    {
        Guard g(heap_lock);
        live_bytes -= bytes;
        if (keep(h, bytes)) return;
    }
    sys::munmap(h, bytes);
}

std::uint32_t large_usable(const void *p) { return header_of(p)->mapped - sizeof(Header); }

void *large_resize(void *p, std::uint32_t size, bool may_move, bool zero) {
    Header *h = header_of(p);
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    std::uint32_t old = h->mapped;
    if (bytes == old) return p;
    // Growing into a kept mapping costs a copy of memory already in hand;
    // growing the mapping costs a page fault for every new page.
    if (bytes > old && may_move) {
        if (Header *n = reuse_kept(bytes)) {
            std::uint32_t was = old - sizeof(Header);
            __builtin_memcpy(n + 1, p, was);
            if (zero) __builtin_memset(reinterpret_cast<char *>(n + 1) + was, 0, n->mapped - old);
            large_free(p);
            return n + 1;
        }
    }
    if (bytes > old) shed_kept(bytes - old);
    auto *n = static_cast<Header *>(
        sys::mremap(h, old, bytes, may_move ? long{sys::mremap_maymove} : 0L));
    if (n == nullptr) return nullptr;
    n->mapped = bytes;
    Guard g(heap_lock);
    live_bytes += bytes - old; // unsigned wrap does the subtraction on shrinking
    if (live_bytes > peak_bytes) peak_bytes = live_bytes;
    return n + 1;
}

} // namespace orv::k32::heap

#include "large.h"

#include "../syscall.h"

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

// The mapping for `size` bytes, or 0 when the rounding would overflow.
std::uint32_t mapping_for(std::uint32_t size) {
    if (size > 0xFFFFFFFFu - sizeof(Header) - (page - 1)) return 0;
    return (size + sizeof(Header) + page - 1) & ~(page - 1);
}

Header *header_of(const void *p) {
    return const_cast<Header *>(static_cast<const Header *>(p)) - 1;
}

} // namespace

void *large_alloc(std::uint32_t size) {
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    auto *h = static_cast<Header *>(sys::mmap_anon(bytes));
    if (h == nullptr) return nullptr;
    h->mapped = bytes;
    h->magic = magic;
    return h + 1;
}

bool large_valid(const void *p) {
    return (reinterpret_cast<std::uintptr_t>(p) & (page - 1)) == sizeof(Header) &&
           header_of(p)->magic == magic;
}

void large_free(void *p) {
    Header *h = header_of(p);
    h->magic = 0;
    sys::munmap(h, h->mapped);
}

std::uint32_t large_usable(const void *p) { return header_of(p)->mapped - sizeof(Header); }

void *large_resize(void *p, std::uint32_t size, bool may_move) {
    Header *h = header_of(p);
    std::uint32_t bytes = mapping_for(size);
    if (bytes == 0) return nullptr;
    if (bytes == h->mapped) return p;
    auto *n = static_cast<Header *>(
        sys::mremap(h, h->mapped, bytes, may_move ? long{sys::mremap_maymove} : 0L));
    if (n == nullptr) return nullptr;
    n->mapped = bytes;
    return n + 1;
}

} // namespace orv::k32::heap

// What the block moves share. memcpy, memmove and memset themselves are
// written for the processor (memmove.S, memset.S); what they hand on, and
// the word access and short copy that other parts of the library inline,
// is here.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/string.h"
#include "runtime/export.h"

namespace orv::block {

using byte = unsigned char;

// A word read or written at any address, without aliasing assumptions.
using word = std::uint32_t __attribute__((may_alias, aligned(1)));

inline std::uint32_t load(const byte *p) { return *reinterpret_cast<const word *>(p); }
inline void store(byte *p, std::uint32_t v) { *reinterpret_cast<word *>(p) = v; }

// An upward copy for the streams and the format engine, inlined where runs
// are mostly short: under 8 bytes byte by byte, up to 16 as four words that
// may overlap, longer ones through memcpy.
[[gnu::always_inline]] inline void copy_up(byte *d, const byte *s, std::size_t n) {
    if (n < 8) {
        for (; n != 0; --n) *d++ = *s++;
    } else if (n <= 16) {
        std::uint32_t a = load(s), b = load(s + 4), c = load(s + n - 8), e = load(s + n - 4);
        store(d, a), store(d + 4, b), store(d + n - 8, c), store(d + n - 4, e);
    } else {
        memcpy(d, s, n);
    }
}

inline void string_move(byte *d, const byte *s, std::size_t n) {
    __asm__ volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
}

inline std::uintptr_t address(const void *p) { return reinterpret_cast<std::uintptr_t>(p); }

// How far to is above from within a page, as the string move sees them.
inline unsigned page_offset(const void *to, const void *from) { return (address(to) - address(from)) & 4095; }

// The string move takes a destination 1 to 31 bytes above its source,
// counted within a page, for an overlap and falls back to a byte at a time,
// twenty and more times slower; at 0 it is somewhat slower.
inline bool string_move_is_slow(const void *d, const void *s) { return page_offset(d, s) < 32; }

} // namespace orv::block

// Upward through a buffer in the frame, for blocks that the string move
// would take slowly.
extern "C" ORV_HIDDEN void __move_up_bounced(orv::block::byte *d, const orv::block::byte *s, std::size_t n);

// Downward, for d less than n above s: in pieces from the end, each moved
// upward.
extern "C" ORV_HIDDEN void __move_down_overlapping(orv::block::byte *d, const orv::block::byte *s, std::size_t n);

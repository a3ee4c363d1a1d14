// What the block moves share. memcpy, memmove and memset themselves are
// written for the processor (memmove.S, memset.S); what they hand on, and
// memcmp, is here.
#pragma once

#include <cstddef>
#include <cstdint>

#include "runtime/export.h"

namespace orv::block {

using byte = unsigned char;

// A word read or written at any address, without aliasing assumptions.
using word = std::uint32_t __attribute__((may_alias, aligned(1)));

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

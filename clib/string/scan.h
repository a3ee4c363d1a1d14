// Word-at-a-time helpers for the string scans. Words are read only at
// 4-byte-aligned addresses, so a read never reaches into the next page
// past a string's terminator; the bytes of the first word that lie before
// the string are masked so they cannot match.
#pragma once

#include <cstdint>

namespace orv::scan {

using word = std::uint32_t __attribute__((may_alias));

// Bit 7 of each byte of w that is zero, and perhaps of bytes above the
// first such byte: the lowest bit set always marks the first zero byte.
inline std::uint32_t zero_bytes(std::uint32_t w) { return (w - 0x01010101u) & ~w & 0x80808080u; }

inline bool aligned(const void *p) { return (reinterpret_cast<std::uintptr_t>(p) & 3) == 0; }

// The aligned word holding p, and ones in the bytes of it that lie before p.
inline const word *word_of(const void *p) {
    return reinterpret_cast<const word *>(reinterpret_cast<std::uintptr_t>(p) & ~std::uintptr_t{3});
}
inline std::uint32_t before_mask(const void *p) {
    return (1u << ((reinterpret_cast<std::uintptr_t>(p) & 3) * 8)) - 1;
}

// The place in its word of the byte that the lowest bit of marks stands for.
inline unsigned first_marked(std::uint32_t marks) { return static_cast<unsigned>(__builtin_ctz(marks)) >> 3; }

} // namespace orv::scan

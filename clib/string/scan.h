// Word-at-a-time helpers for the string scans: no read reaches into the
// next page past a string's terminator.
#pragma once

#include <cstdint>

namespace orv::scan {

using any_word = std::uint32_t __attribute__((may_alias, aligned(1)));

inline constexpr std::uint32_t ones = 0x01010101u;
inline constexpr std::uint32_t highs = 0x80808080u;

// Bit 7 of each byte of w that is zero, and perhaps of bytes above the
// first such byte: the lowest bit set always marks the first zero byte.
inline std::uint32_t zero_bytes(std::uint32_t w) { return (w - ones) & ~w & highs; }

// Not 0 when one of the words has a zero byte; also, falsely, for some
// bytes from 0x81 on. One instruction cheaper a word than zero_bytes, so
// the loops test with it and let zero_bytes decide.
inline bool maybe_zero(std::uint32_t a, std::uint32_t b) { return ((a - ones) | (b - ones)) & highs; }

// The place in its word of the byte that the lowest bit of marks stands for.
inline unsigned first_marked(std::uint32_t marks) { return static_cast<unsigned>(__builtin_ctz(marks)) >> 3; }

// Blocks of two words. A block is read whole at s only when it lies in
// s's page: past the terminator it reads nothing that could fault. After
// the first block, the scans go on from aligned blocks, which never cross
// a page.
inline constexpr unsigned block = 8;

inline bool fits_block(const void *p) { return (reinterpret_cast<std::uintptr_t>(p) & 4095) <= 4096 - block; }
inline bool block_aligned(const void *p) { return (reinterpret_cast<std::uintptr_t>(p) & (block - 1)) == 0; }
// The aligned block after the one that starts at p.
inline const char *next_block(const char *p) {
    return reinterpret_cast<const char *>((reinterpret_cast<std::uintptr_t>(p) + block) & ~std::uintptr_t{block - 1});
}

// The aligned word that holds p, which lies wholly in p's page, and a mask
// that makes the bytes of that word before p non-zero.
using word = std::uint32_t __attribute__((may_alias));
inline const word *word_of(const void *p) {
    return reinterpret_cast<const word *>(reinterpret_cast<std::uintptr_t>(p) & ~std::uintptr_t{3});
}
inline std::uint32_t before_mask(const void *p) {
    return (1u << ((reinterpret_cast<std::uintptr_t>(p) & 3) * 8)) - 1;
}

inline std::uint32_t load(const char *p) { return *reinterpret_cast<const any_word *>(p); }

// The words of a block found interesting are read again rather than kept:
// keeping them costs more on a processor with so few registers.
template <class T> inline void forget(T *&p) { __asm__("" : "+r"(p)); }

// The first zero byte of the block at p, or null.
inline const char *first_zero(const char *p) {
    if (!maybe_zero(load(p), load(p + 4))) return nullptr;
    forget(p);
    if (std::uint32_t m = zero_bytes(load(p))) return p + first_marked(m);
    if (std::uint32_t m = zero_bytes(load(p + 4))) return p + 4 + first_marked(m);
    return nullptr;
}

// The first byte of the block at p that is zero or, in every byte of
// pattern, the same; or null.
inline const char *first_zero_or(const char *p, std::uint32_t pattern) {
    std::uint32_t a = load(p), b = load(p + 4);
    if (!maybe_zero(a, b) && !maybe_zero(a ^ pattern, b ^ pattern)) return nullptr;
    forget(p);
    a = load(p);
    if (std::uint32_t m = zero_bytes(a) | zero_bytes(a ^ pattern)) return p + first_marked(m);
    b = load(p + 4);
    if (std::uint32_t m = zero_bytes(b) | zero_bytes(b ^ pattern)) return p + 4 + first_marked(m);
    return nullptr;
}

} // namespace orv::scan

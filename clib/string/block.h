// Block moves and fills shared by memcpy, memmove and memset. Blocks under
// 8 bytes go byte by byte, 8 to 16 bytes as four overlapping words. Longer
// ones first bring the destination to a word boundary; then medium blocks
// move in an unrolled word loop, which saves the start-up of a string
// instruction, and long ones with the processor's repeated move or store.
// Downward, the string instruction is slow on current processors, so long
// blocks go down in pieces, each moved upward (see pieces_down).
#pragma once

#include <cstddef>
#include <cstdint>

namespace orv::block {

using byte = unsigned char;

// A word read or written at any address, without aliasing assumptions.
using word = std::uint32_t __attribute__((may_alias, aligned(1)));

inline constexpr int byte_limit = 8;             // shorter blocks go in bytes
inline constexpr std::size_t string_limit = 256; // from here the string instructions

inline bool is_short(std::size_t n) { return static_cast<int>(n) < byte_limit; }
inline bool is_small(std::size_t n) { return n <= 16; }

inline std::uint32_t load(const byte *p) { return *reinterpret_cast<const word *>(p); }
inline void store(byte *p, std::uint32_t v) { *reinterpret_cast<word *>(p) = v; }

// 8 to 16 bytes: four words that may overlap each other, all loaded before
// any is stored, so the direction does not matter.
inline void move_small(byte *d, const byte *s, std::size_t n) {
    std::uint32_t a = load(s), b = load(s + 4), c = load(s + n - 8), e = load(s + n - 4);
    store(d, a), store(d + 4, b), store(d + n - 8, c), store(d + n - 4, e);
}

inline void move_words_up(byte *&d, const byte *&s, std::size_t words) {
    __asm__ volatile("rep movsl" : "+D"(d), "+S"(s), "+c"(words) : : "memory");
}

// Words upward, four at a time; every load of a step comes before its
// stores, so an overlap with the destination below the source is safe.
inline void loop_up(byte *&d, const byte *&s, std::size_t words) {
    for (; words >= 4; words -= 4, d += 16, s += 16) {
        std::uint32_t a = load(s), b = load(s + 4), c = load(s + 8), e = load(s + 12);
        store(d, a), store(d + 4, b), store(d + 8, c), store(d + 12, e);
    }
    for (; words != 0; --words, d += 4, s += 4) store(d, load(s));
}

// The mirror image; d and s point one past the ends.
inline void loop_down(byte *&d, const byte *&s, std::size_t words) {
    for (; words >= 4; words -= 4) {
        d -= 16, s -= 16;
        std::uint32_t a = load(s + 12), b = load(s + 8), c = load(s + 4), e = load(s);
        store(d + 12, a), store(d + 8, b), store(d + 4, c), store(d, e);
    }
    for (; words != 0; --words) d -= 4, s -= 4, store(d, load(s));
}

// Long blocks downward, piece by piece from the end. A piece no longer than
// the distance between the blocks overwrites no source byte still to be
// read, so it can move upward directly; with the blocks closer than that,
// each piece is first read whole into a buffer in the frame. Leaves the
// last few words for the caller.
inline constexpr std::size_t bounce_words = 256;

inline void pieces_down(byte *&d, const byte *&s, std::size_t &words) {
    std::size_t gap_words = static_cast<std::size_t>(d - s) >> 2;
    if (gap_words >= bounce_words) {
        for (; words >= gap_words; words -= gap_words) {
            d -= gap_words * 4, s -= gap_words * 4;
            byte *pd = d;
            const byte *ps = s;
            move_words_up(pd, ps, gap_words);
        }
        return;
    }
    std::uint32_t buffer[bounce_words];
    while (words >= string_limit / 4) {
        std::size_t piece = words < bounce_words ? words : bounce_words;
        d -= piece * 4, s -= piece * 4;
        byte *pd = reinterpret_cast<byte *>(buffer);
        const byte *ps = s;
        move_words_up(pd, ps, piece);
        pd = d;
        ps = reinterpret_cast<const byte *>(buffer);
        move_words_up(pd, ps, piece);
        words -= piece;
    }
}

[[gnu::always_inline]] inline void copy_up(byte *d, const byte *s, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *d++ = *s++;
        return;
    }
    if (is_small(n)) return move_small(d, s, n);
    std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(d)) & 3;
    n -= head;
    for (; head != 0; --head) *d++ = *s++;
    if (n >= string_limit)
        move_words_up(d, s, n >> 2);
    else
        loop_up(d, s, n >> 2);
    for (n &= 3; n != 0; --n) *d++ = *s++;
}

// Copies from the last byte down; d and s point one past the ends, and d
// lies above s.
[[gnu::always_inline]] inline void copy_down(byte *d, const byte *s, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *--d = *--s;
        return;
    }
    if (is_small(n)) return move_small(d - n, s - n, n);
    std::size_t tail = reinterpret_cast<std::uintptr_t>(d) & 3;
    n -= tail;
    for (; tail != 0; --tail) *--d = *--s;
    std::size_t words = n >> 2;
    if (words >= string_limit / 4) pieces_down(d, s, words);
    loop_down(d, s, words);
    for (n &= 3; n != 0; --n) *--d = *--s;
}

[[gnu::always_inline]] inline void fill(byte *d, byte value, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *d++ = value;
        return;
    }
    std::uint32_t pattern = value * 0x01010101u;
    if (is_small(n)) {
        store(d, pattern), store(d + 4, pattern), store(d + n - 8, pattern), store(d + n - 4, pattern);
        return;
    }
    std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(d)) & 3;
    n -= head;
    for (; head != 0; --head) *d++ = value;
    std::size_t words = n >> 2;
    if (n >= string_limit) {
        __asm__ volatile("rep stosl" : "+D"(d), "+c"(words) : "a"(pattern) : "memory");
    } else {
        for (; words >= 4; words -= 4, d += 16)
            store(d, pattern), store(d + 4, pattern), store(d + 8, pattern), store(d + 12, pattern);
        for (; words != 0; --words, d += 4) store(d, pattern);
    }
    for (n &= 3; n != 0; --n) *d++ = value;
}

} // namespace orv::block

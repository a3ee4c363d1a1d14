// Block moves and fills shared by memcpy, memmove and memset: short blocks
// go byte by byte, longer ones align the destination and move words with
// the processor's string instructions.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orv::block {

using byte = unsigned char;

// A word read or written at any address, without aliasing assumptions.
using word_alias = std::uint32_t __attribute__((may_alias, aligned(1)));

inline constexpr std::size_t byte_limit = 8; // shorter blocks go in bytes

inline bool is_short(std::size_t n) { return static_cast<int>(n) < static_cast<int>(byte_limit); }

inline void copy_up(byte *d, const byte *s, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *d++ = *s++;
        return;
    }
    std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(d)) & 3;
    n -= head;
    for (; head != 0; --head) *d++ = *s++;
    std::size_t words = n >> 2;
    __asm__ volatile("rep movsl" : "+D"(d), "+S"(s), "+c"(words) : : "memory");
    for (n &= 3; n != 0; --n) *d++ = *s++;
}

// Copies from the last byte down; d and s point one past the ends.
inline void copy_down(byte *d, const byte *s, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *--d = *--s;
        return;
    }
    std::size_t tail = reinterpret_cast<std::uintptr_t>(d) & 3;
    n -= tail;
    for (; tail != 0; --tail) *--d = *--s;
    std::size_t words = n >> 2;
    d -= 4;
    s -= 4;
    // The direction flag is set only for this one instruction: the ABI
    // requires it clear everywhere else.
    __asm__ volatile("std\n\trep movsl\n\tcld" : "+D"(d), "+S"(s), "+c"(words) : : "memory");
    d += 4;
    s += 4;
    for (n &= 3; n != 0; --n) *--d = *--s;
}

inline void fill(byte *d, byte value, std::size_t n) {
    if (is_short(n)) {
        for (; n != 0; --n) *d++ = value;
        return;
    }
    std::size_t head = (0u - reinterpret_cast<std::uintptr_t>(d)) & 3;
    n -= head;
    for (; head != 0; --head) *d++ = value;
    std::size_t words = n >> 2;
    std::uint32_t pattern = value * 0x01010101u;
    __asm__ volatile("rep stosl" : "+D"(d), "+c"(words) : "a"(pattern) : "memory");
    for (n &= 3; n != 0; --n) *d++ = value;
}

} // namespace orv::block

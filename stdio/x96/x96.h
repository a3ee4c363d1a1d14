// The extended number of text-to-number conversion and the wide integers
// it is built from. Digits gather in a 96-bit integer, which becomes an
// x96 and is scaled by a power of ten in that format, so that a decimal
// text is rounded to double only once. Integer instructions only: nothing
// here depends on the x87 state.
//
// Both kinds are three 32-bit words, most significant first. A wide
// integer is (hi, mid, lo); its 64-bit form is (hi, lo). An x96 is:
//   word 0: bit 31 sign (1 negative), bits 30..16 biased exponent (bias
//           16383, 0 marks zero), bits 15..0 zero
//   word 1: significand high half, bit 31 the explicit leading one
//   word 2: significand low half
// There are no infinities, NaNs or denormals. A product out of range
// saturates (to zero, or to the largest exponent); elsewhere exponents out
// of range wrap into the field and callers keep away from them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "runtime/export.h"

extern "C" {

ORV_EXPORT void _add64(std::uint32_t* hi, std::uint32_t* lo, std::uint32_t addend);
ORV_EXPORT void _add96(std::uint32_t* hi, std::uint32_t* mid, std::uint32_t* lo,
                       std::uint32_t addend);
ORV_EXPORT void _sub64(std::uint32_t* hi, std::uint32_t* lo, std::uint32_t subtrahend);
ORV_EXPORT void _sub96(std::uint32_t* hi, std::uint32_t* mid, std::uint32_t* lo,
                       std::uint32_t subtrahend);
// number * 10 + (digit & 15), modulo 2^96: an ASCII digit may be passed.
ORV_EXPORT void _mulx10(std::uint32_t* number, std::uint32_t digit);
// A wide integer to an x96, in place; bits below the 64 kept are dropped.
ORV_EXPORT void _normal96(std::uint32_t* number);
// The results may be written over an operand.
ORV_EXPORT void _mulx(const std::uint32_t* a, const std::uint32_t* b, std::uint32_t* result);
ORV_EXPORT void _divx(const std::uint32_t* a, const std::uint32_t* b, std::uint32_t* result);
ORV_EXPORT void _cmath_xtoi(const std::uint32_t* x, int power, std::uint32_t* result);

}

namespace orv {

struct x96 {
    std::uint32_t word[3];
};
static_assert(sizeof(x96) == 12);
static_assert(alignof(x96) == 4);
static_assert(offsetof(x96, word) == 0);

namespace x96f {

inline constexpr std::uint32_t kSign = 0x80000000u;
inline constexpr std::uint32_t kLeadingOne = 0x80000000u;
inline constexpr int kBias = 16383;

inline constexpr x96 kOne = {{0x3FFF0000u, 0x80000000u, 0}};
inline constexpr x96 kTen = {{0x40020000u, 0xA0000000u, 0}};

inline constexpr int exponent_field(std::uint32_t head) {
    return static_cast<int>((head >> 16) & 0x7FFF);
}
// The head word of a result; an out-of-range exponent wraps, as told above.
inline constexpr std::uint32_t make_head(std::uint32_t sign, int field) {
    return sign | (static_cast<std::uint32_t>(field) << 16);
}

inline void set_zero(std::uint32_t* r) { r[0] = r[1] = r[2] = 0; }
inline void copy(std::uint32_t* r, const std::uint32_t* x) {
    r[0] = x[0];
    r[1] = x[1];
    r[2] = x[2];
}

// Carry and borrow through separate words; whatever leaves the top word
// is lost.
inline void add64(std::uint32_t& hi, std::uint32_t& lo, std::uint32_t addend) {
    lo += addend;
    if (lo < addend) ++hi;
}
inline void add96(std::uint32_t& hi, std::uint32_t& mid, std::uint32_t& lo,
                  std::uint32_t addend) {
    lo += addend;
    if (lo < addend && ++mid == 0) ++hi;
}
inline void sub64(std::uint32_t& hi, std::uint32_t& lo, std::uint32_t subtrahend) {
    if (lo < subtrahend) --hi;
    lo -= subtrahend;
}
inline void sub96(std::uint32_t& hi, std::uint32_t& mid, std::uint32_t& lo,
                  std::uint32_t subtrahend) {
    if (lo < subtrahend && mid-- == 0) --hi;
    lo -= subtrahend;
}

inline void shift_left96(std::uint32_t& hi, std::uint32_t& mid, std::uint32_t& lo) {
    hi = (hi << 1) | (mid >> 31);
    mid = (mid << 1) | (lo >> 31);
    lo <<= 1;
}
inline void shift_right96(std::uint32_t& hi, std::uint32_t& mid, std::uint32_t& lo) {
    lo = (lo >> 1) | (mid << 31);
    mid = (mid >> 1) | (hi << 31);
    hi >>= 1;
}

}  // namespace x96f
}  // namespace orv

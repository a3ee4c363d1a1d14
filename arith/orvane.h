// The 64-bit helpers of compiled code, for the library's own callers too.
// All are cdecl: a 64-bit value travels as two stack words, low word first,
// and comes back in EDX:EAX; a floating result comes back in ST(0).
//
// The fast family answers with the hardware wherever that is exact: word
// multiplies and divisions, and the x87 unit with its 64-bit significand
// under the stored control word __orvane_x87_cw, the caller's restored on
// exit. The unsigned conversions of values from 2^63 up are left to the
// slow partner, whose truncation is their defined result. The slow family
// is integer work in 32-bit words and never calls the fast one.
#pragma once

#include <cstdint>

#include "runtime/export.h"

extern "C" {

ORV_EXPORT long long _orvane_cvtdll(double x);
ORV_EXPORT long long _orvane_cvtfll(float x);
ORV_EXPORT double _orvane_cvtlld(long long x);
ORV_EXPORT double _orvane_cvtulld(unsigned long long x);
ORV_EXPORT float _orvane_cvtllf(long long x);
ORV_EXPORT float _orvane_cvtullf(unsigned long long x);
ORV_EXPORT long long _orvane_ldiv(long long a, long long b);
ORV_EXPORT long long _orvane_lmod(long long a, long long b);
ORV_EXPORT unsigned long long _orvane_uldiv(unsigned long long a, unsigned long long b);
ORV_EXPORT unsigned long long _orvane_ulmod(unsigned long long a, unsigned long long b);
ORV_EXPORT long long _orvane_lmul(long long a, long long b);
ORV_EXPORT long long _orvane_arlshift(long long x, int n);
ORV_EXPORT long long _orvane_llshift(long long x, int n);
ORV_EXPORT long long _orvane_rlshift(long long x, int n);

ORV_EXPORT long long _orvane_slow_cvtdll(double x);
ORV_EXPORT long long _orvane_slow_cvtfll(float x);
ORV_EXPORT double _orvane_slow_cvtlld(long long x);
ORV_EXPORT double _orvane_slow_cvtulld(unsigned long long x);
ORV_EXPORT float _orvane_slow_cvtllf(long long x);
ORV_EXPORT float _orvane_slow_cvtullf(unsigned long long x);
ORV_EXPORT long long _orvane_slow_ldiv(long long a, long long b);
ORV_EXPORT long long _orvane_slow_lmod(long long a, long long b);
ORV_EXPORT unsigned long long _orvane_slow_uldiv(unsigned long long a, unsigned long long b);
ORV_EXPORT unsigned long long _orvane_slow_ulmod(unsigned long long a, unsigned long long b);
ORV_EXPORT long long _orvane_slow_lmul(long long a, long long b);

// 0x0F3F: all exceptions masked, 64-bit significand, rounding toward zero,
// the state under which conversions truncate and divisions are exact.
extern const std::uint16_t __orvane_x87_cw;

}

namespace orv {

// A 64-bit value as the helpers see it: two 32-bit words.
inline constexpr std::uint32_t lo_word(std::uint64_t v) { return static_cast<std::uint32_t>(v); }
inline constexpr std::uint32_t hi_word(std::uint64_t v) { return static_cast<std::uint32_t>(v >> 32); }
inline constexpr std::uint64_t make64(std::uint32_t hi, std::uint32_t lo) {
    return (static_cast<std::uint64_t>(hi) << 32) | lo;
}

}  // namespace orv

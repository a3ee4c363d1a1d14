// The double-level operations that the quad functions stand on, with the
// behaviour of the library's double functions: NaN in a comparison makes
// the left operand count as less than and equal to the right, truncation
// works on bits, ldexp never makes a denormal. Kept inline and private so
// that the quad kernel does not depend on the order in which the double
// family is built.
#pragma once

#include "include/errno.h"
#include "include/quad.h"

#include <bit>
#include <cstdint>

namespace orv::qk {

// Comparisons under the library's NaN rule.
inline bool lt(double a, double b) { return !(a >= b); }
inline bool le(double a, double b) { return !(a > b); }
inline bool eq(double a, double b) { return !(a < b) && !(a > b); }
inline bool gt(double a, double b) { return a > b; }
inline bool ge(double a, double b) { return a >= b; }

inline constexpr std::uint64_t nan_bits = 0x7FF8000000000000ull;

inline double nan() { return std::bit_cast<double>(nan_bits); }

inline quad make(double hi, double lo) {
    quad q;
    q.hi = hi;
    q.lo = lo;
    return q;
}

// The quad NaN that the library makes: (NaN, +0).
inline quad quad_nan() { return make(nan(), 0.0); }

inline std::uint64_t bits(double x) { return std::bit_cast<std::uint64_t>(x); }
inline double from_bits(std::uint64_t b) { return std::bit_cast<double>(b); }

inline int exponent_field(double x) { return static_cast<int>((bits(x) >> 52) & 0x7FF); }

inline double with_exponent_field(double x, int e) {
    constexpr std::uint64_t field = 0x7FF0000000000000ull;
    return from_bits((bits(x) & ~field) | (static_cast<std::uint64_t>(e) << 52));
}

// Truncation toward zero on bits; a fraction below 1 gives +0.
inline double dint(double x) {
    int e = exponent_field(x);
    if (e > 0x433) return x;
    if (e < 0x3FF) return 0.0;
    std::uint64_t mask = ~0ull << (0x433 - e);
    return from_bits(bits(x) & mask);
}

inline double floor_d(double x);

inline double ceil_d(double x) {
    if (eq(x, 0.0)) return 0.0;
    if (lt(x, 0.0)) return -floor_d(-x);
    double t = dint(x);
    return eq(t, x) ? t : t + 1.0;
}

inline double floor_d(double x) {
    if (eq(x, 0.0)) return 0.0;
    if (lt(x, 0.0)) return -ceil_d(-x);
    return dint(x);
}

// Rounds halves away from zero, whatever the rounding mode.
inline double rint_d(double x) {
    if (ge(x, 0.0)) return dint(x + 0.5);
    return -dint(-x + 0.5);
}

// x * 2^n on the exponent field: zeros and denormals unchanged, infinities
// and NaNs give NaN, a result below the normal range +0, overflow ERANGE.
inline double ldexp_d(double x, int n) {
    int e = exponent_field(x);
    if (e == 0) return x;
    if (e == 0x7FF) return nan();
    long long s = static_cast<long long>(e) + n;
    if (s <= 0) return 0.0;
    if (s >= 0x7FF) {
        errno = ERANGE;
        return from_bits((bits(x) & 0x8000000000000000ull) | 0x7FF0000000000000ull);
    }
    return with_exponent_field(x, static_cast<int>(s));
}

// h + c as a normalised pair, h the larger.
inline quad normal_sum(double h, double c) {
    double hi = h + c;
    return make(hi, c - (hi - h));
}

// Truncation of a double to a 32-bit int: NaN and out-of-range values give
// -2147483648, as the x87 conversion does.
inline int to_int(double x) {
    if (!(x > -2147483649.0 && x < 2147483648.0)) return -2147483647 - 1;
    return static_cast<int>(x);
}

} // namespace orv::qk

namespace orv::qk {

// floorl and ceill: the low part decides only when the high part is
// integral already.
template <double (*Round)(double)>
inline quad round_pair(quad x) {
    double h = Round(x.hi);
    if (!eq(h, x.hi)) return make(h, 0.0);
    return normal_sum(h, Round(x.lo));
}

} // namespace orv::qk

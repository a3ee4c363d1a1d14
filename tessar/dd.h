// Double-double kernels of the quad primitives. They rely on every double
// operation rounding to 53 bits to nearest, which is the x87 state the
// library runs in (precision control 53 bits). There is no fused
// multiply-add, so exact products come from Veltkamp splitting.
#pragma once

#include "include/quad.h"

#include <bit>
#include <cstdint>

namespace orv::dd {

inline quad make(double hi, double lo) {
    quad q;
    q.hi = hi;
    q.lo = lo;
    return q;
}

inline quad neg(quad a) { return make(-a.hi, -a.lo); }

// s + e == a + b exactly, provided |a| >= |b| or a is 0.
inline quad quick_two_sum(double a, double b) {
    double s = a + b;
    return make(s, b - (s - a));
}

// s + e == a + b exactly, whatever the magnitudes.
inline quad two_sum(double a, double b) {
    double s = a + b;
    double bb = s - a;
    return make(s, (a - (s - bb)) + (b - bb));
}

// hi + lo == a, each with at most 26 significant bits. Arguments near the
// top of the range are scaled first so that the split cannot overflow.
inline quad split(double a) {
    constexpr double C = 134217729.0;   // 2^27 + 1
    constexpr double big = 6.69692879491417e+299;  // 2^996
    if (a > big || a < -big) {
        constexpr double down = 1.0 / 268435456.0, up = 268435456.0;  // 2^-28, 2^28
        double s = a * down;
        double t = C * s;
        double hi = t - (t - s);
        return make(hi * up, (s - hi) * up);
    }
    double t = C * a;
    double hi = t - (t - a);
    return make(hi, a - hi);
}

// p + e == a * b exactly (barring underflow).
inline quad two_prod(double a, double b) {
    double p = a * b;
    quad x = split(a), y = split(b);
    double e = ((x.hi * y.hi - p) + x.hi * y.lo + x.lo * y.hi) + x.lo * y.lo;
    return make(p, e);
}

// An infinite or NaN leading part leaves no meaningful trailing part: such
// results come out as (hi, +0), the form of the library's own infinities.
// Read from the stored bits: an x87 register would still hold a value
// beyond the double range as finite.
inline bool finite(double x) {
    return ((std::bit_cast<std::uint64_t>(x) >> 52) & 0x7FF) != 0x7FF;
}

inline quad finish(quad r) {
    if (!finite(r.hi)) r.lo = 0.0;
    return r;
}

inline quad add(quad a, quad b) {
    quad s = two_sum(a.hi, b.hi);
    if (!finite(s.hi)) return make(s.hi, 0.0);
    quad t = two_sum(a.lo, b.lo);
    s = quick_two_sum(s.hi, s.lo + t.hi);
    return finish(quick_two_sum(s.hi, s.lo + t.lo));
}

inline quad add_d(quad a, double d) {
    quad s = two_sum(a.hi, d);
    if (!finite(s.hi)) return make(s.hi, 0.0);
    return finish(quick_two_sum(s.hi, s.lo + a.lo));
}

inline quad mul(quad a, quad b) {
    quad p = two_prod(a.hi, b.hi);
    if (!finite(p.hi)) return make(p.hi, 0.0);
    p.lo += a.hi * b.lo + a.lo * b.hi;
    return finish(quick_two_sum(p.hi, p.lo));
}

inline quad mul_d(quad a, double d) {
    quad p = two_prod(a.hi, d);
    if (!finite(p.hi)) return make(p.hi, 0.0);
    p.lo += a.lo * d;
    return finish(quick_two_sum(p.hi, p.lo));
}

// Long division by three double quotient digits: each digit is the leading
// part of the remainder over b.hi, so the third corrects the rounding of
// the first two.
inline quad div(quad a, quad b) {
    double q1 = a.hi / b.hi;
    if (!finite(q1)) return make(q1, 0.0);
    quad r = add(a, neg(mul_d(b, q1)));
    double q2 = r.hi / b.hi;
    r = add(r, neg(mul_d(b, q2)));
    double q3 = r.hi / b.hi;
    return add_d(quick_two_sum(q1, q2), q3);
}

// Powers by repeated squaring; a negative power is the reciprocal of the
// finished positive one.
template <class Unsigned>
inline quad power(quad a, Unsigned m, bool negative) {
    quad r = make(1.0, 0.0);
    while (m != 0) {
        if (m & 1) r = mul(r, a);
        m >>= 1;
        if (m != 0) a = mul(a, a);
    }
    return negative ? div(make(1.0, 0.0), r) : r;
}

} // namespace orv::dd

// Double-double kernels of the quad primitives. They rely on every double
// operation rounding to 53 bits to nearest, which is the x87 state the
// library runs in (precision control 53 bits). There is no fused
// multiply-add, so exact products come from Veltkamp splitting. The small
// terms that follow an exact leading part are summed with the precision
// widened to 64 bits for a few instructions: they then carry no rounding
// that shows in the result, which costs less than carrying them as pairs.
#pragma once

#include "include/quad.h"

#include <cstdint>

namespace orv::dd {

inline quad make(double hi, double lo) {
    quad q;
    q.hi = hi;
    q.lo = lo;
    return q;
}

inline quad neg(quad a) { return make(-a.hi, -a.lo); }

// s + e == a + b exactly, provided |a| >= |b| or a is 0. The error is
// taken as (a - s) + b so that an exact result carries +0, never -0.
inline quad quick_two_sum(double a, double b) {
    double s = a + b;
    return make(s, (a - s) + b);
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
    if (__builtin_fabs(a) > big) {
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

// Whether x stores as a finite double. Values here carry 53-bit
// significands, and the x87 registers hold exponents beyond the double
// range, so nothing lies between the largest double and the first value
// that stores as infinity; NaN fails the comparison.
inline bool finite(double x) {
    return __builtin_fabs(x) <= 1.7976931348623157e308;
}

inline bool same_sign(double a, double b) {
    return (__builtin_signbit(a) != 0) == (__builtin_signbit(b) != 0);
}

// An infinite or NaN result leaves no meaningful trailing part: it comes
// out as (hi, +0), the form of the library's own infinities, with hi the
// leading parts' own result, which says what the non-finite value is.
inline quad finish(quad r, double leading) {
    if (finite(r.hi)) return r;
    return make(leading, 0.0);
}

// The caller's control word and the same with 64-bit precision.
struct ControlWords {
    unsigned short caller, wide;
};

inline ControlWords control_words() {
    ControlWords w;
    __asm__ volatile("fnstcw %0" : "=m"(w.caller));
    w.wide = static_cast<unsigned short>(w.caller | 0x300);
    return w;
}

// e + a.hi b.lo + a.lo b.hi + a.lo b.lo at 64 bits: what a product adds to
// the exact product of the leading parts, whose error is e.
inline double product_tail(double e, const quad &a, const quad &b) {
    ControlWords w = control_words();
    double t;
    __asm__("fldcw %[wide]\n\t"
            "fldl %[ahi]\n\t"
            "fmull %[blo]\n\t"
            "fldl %[alo]\n\t"
            "fmull %[bhi]\n\t"
            "faddp\n\t"
            "fldl %[alo]\n\t"
            "fmull %[blo]\n\t"
            "faddp\n\t"
            "faddp\n\t"
            "fldcw %[caller]"
            : "=t"(t)
            : "0"(e), [wide] "m"(w.wide), [caller] "m"(w.caller), [ahi] "m"(a.hi),
              [alo] "m"(a.lo), [bhi] "m"(b.hi), [blo] "m"(b.lo));
    return t;
}

// (r + a.lo - q b.lo) / (b.hi + b.lo) at 64 bits: the correction to the
// leading quotient q, with r = a.hi - q b.hi exact.
inline double quotient_tail(double r, double q, const quad &a, const quad &b) {
    ControlWords w = control_words();
    double t;
    __asm__("fldcw %[wide]\n\t"
            "fmull %[blo]\n\t"
            "fsubrl %[alo]\n\t"
            "faddp\n\t"
            "fldl %[bhi]\n\t"
            "faddl %[blo]\n\t"
            "fdivrp\n\t"
            "fldcw %[caller]"
            : "=t"(t)
            : "0"(q), "u"(r), [wide] "m"(w.wide), [caller] "m"(w.caller), [alo] "m"(a.lo),
              [bhi] "m"(b.hi), [blo] "m"(b.lo)
            : "st(1)");
    return t;
}

inline quad add(quad a, quad b) {
    quad s = two_sum(a.hi, b.hi);
    // Without cancellation the trailing parts can go in with one rounding:
    // every term is then small beside the sum.
    if (same_sign(a.hi, b.hi)) return finish(quick_two_sum(s.hi, s.lo + (a.lo + b.lo)), s.hi);
    quad t = two_sum(a.lo, b.lo);
    quad r = quick_two_sum(s.hi, s.lo + t.hi);
    return finish(quick_two_sum(r.hi, r.lo + t.lo), s.hi);
}

inline quad add_d(quad a, double d) {
    quad s = two_sum(a.hi, d);
    return finish(quick_two_sum(s.hi, s.lo + a.lo), s.hi);
}

inline quad mul(quad a, quad b) {
    quad p = two_prod(a.hi, b.hi);
    // The leading parts alone show a product beyond the range. Leaving
    // before the tail also measured some 25 cycles shorter in a chain of
    // products, the compiler scheduling the tail better behind the test.
    if (!finite(p.hi)) return make(p.hi, 0.0);
    return finish(quick_two_sum(p.hi, product_tail(p.lo, a, b)), p.hi);
}

// One double quotient q and one correction. The remainder of a correctly
// rounded quotient is itself a double, so a.hi - q b.hi comes out exact
// from the exact product.
inline quad div(quad a, quad b) {
    double q = a.hi / b.hi;
    quad p = two_prod(q, b.hi);
    double r = (a.hi - p.hi) - p.lo;
    return finish(quick_two_sum(q, quotient_tail(r, q, a, b)), q);
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

/* Exact reference arithmetic for the quad tests: a two's complement fixed-
   point number of 40 words, lowest bit 2^-640. Any product of two doubles
   whose last significand bits lie at or above 2^-640 in all (two doubles
   in 2^-250..2^250, say) is held exactly, so the sums of products that a
   double-double operation stands for are formed without error. */
#ifndef ORV_TEST_EXACT_H
#define ORV_TEST_EXACT_H

#include <quad.h>

#include "harness.h"

#define X_WORDS 40
#define X_LOW 640

typedef struct { unsigned w[X_WORDS]; } exact;
typedef unsigned long long u64;

static inline u64 x_bits_of(double d) { union { double d; u64 u; } b; b.d = d; return b.u; }
static inline double x_double_of(u64 u) { union { double d; u64 u; } b; b.u = u; return b.d; }
static inline double x_pow2(int k) { return x_double_of((u64)(k + 1023) << 52); }  /* k normal */
static inline double x_fabs(double d) { return d < 0 ? -d : d; }
static inline quad Q(double hi, double lo) { quad q; q.hi = hi; q.lo = lo; return q; }

static inline void x_zero(exact *x) { for (int i = 0; i < X_WORDS; ++i) x->w[i] = 0; }
static inline int x_negative(const exact *x) { return (x->w[X_WORDS - 1] >> 31) != 0; }
static inline int x_is_zero(const exact *x) {
    for (int i = 0; i < X_WORDS; ++i) if (x->w[i]) return 0;
    return 1;
}
static inline void x_negate(exact *x) {
    u64 c = 1;
    for (int i = 0; i < X_WORDS; ++i, c >>= 32) x->w[i] = (unsigned)(c += (unsigned)~x->w[i]);
}

/* x += y, x -= y */
static inline void x_add(exact *x, const exact *y) {
    u64 c = 0;
    for (int i = 0; i < X_WORDS; ++i, c >>= 32) x->w[i] = (unsigned)(c += (u64)x->w[i] + y->w[i]);
}
static inline void x_sub(exact *x, const exact *y) { exact t = *y; x_negate(&t); x_add(x, &t); }

/* x += sign * m * 2^(shift - 640), m an integer of four words. */
static inline void x_add_int(exact *x, const unsigned m[4], int shift, int negative) {
    exact t;
    x_zero(&t);
    int word = shift / 32, bit = shift % 32;
    for (int i = 0; i < 4 && word + i < X_WORDS; ++i) {
        u64 v = (u64)m[i] << bit;
        t.w[word + i] |= (unsigned)v;
        if (word + i + 1 < X_WORDS) t.w[word + i + 1] |= (unsigned)(v >> 32);
    }
    if (negative) x_negate(&t);
    x_add(x, &t);
}

/* d = (-1)^neg m 2^e with m odd (or 0). */
static inline void x_decompose(double d, u64 *m, int *e, int *neg) {
    u64 u = x_bits_of(d);
    int field = (int)((u >> 52) & 0x7FF);
    *neg = (int)(u >> 63);
    *m = u & 0xFFFFFFFFFFFFFull;
    if (field) *m |= 1ull << 52; else field = 1;
    *e = field - 1075;
    while (*m && !(*m & 1)) { *m >>= 1; ++*e; }
}

/* x += (-1)^negate a b, exactly. */
static inline void x_add_prod(exact *x, double a, double b, int negate) {
    u64 ma, mb;
    int ea, eb, na, nb;
    x_decompose(a, &ma, &ea, &na);
    x_decompose(b, &mb, &eb, &nb);
    if (ma == 0 || mb == 0) return;
    if (ea + eb + X_LOW < 0) { t_check(0, "exact: below range", __FILE__, __LINE__); return; }
    u64 a0 = (unsigned)ma, a1 = ma >> 32, b0 = (unsigned)mb, b1 = mb >> 32;
    u64 p00 = a0 * b0, p01 = a0 * b1, p10 = a1 * b0, p11 = a1 * b1;
    unsigned m[4];
    u64 c = (p00 >> 32) + (unsigned)p01 + (unsigned)p10;
    m[0] = (unsigned)p00;
    m[1] = (unsigned)c;
    c = (c >> 32) + (p01 >> 32) + (p10 >> 32) + (unsigned)p11;
    m[2] = (unsigned)c;
    m[3] = (unsigned)((c >> 32) + (p11 >> 32));
    x_add_int(x, m, ea + eb + X_LOW, (na ^ nb ^ negate) != 0);
}

static inline void x_add_q(exact *x, quad q, int negate) {
    x_add_prod(x, q.hi, 1.0, negate);
    x_add_prod(x, q.lo, 1.0, negate);
}
static inline void x_add_qprod(exact *x, quad a, quad b, int negate) {
    x_add_prod(x, a.hi, b.hi, negate);
    x_add_prod(x, a.hi, b.lo, negate);
    x_add_prod(x, a.lo, b.hi, negate);
    x_add_prod(x, a.lo, b.lo, negate);
}

static inline exact x_of_q(quad q) { exact x; x_zero(&x); x_add_q(&x, q, 0); return x; }
static inline exact x_of_qprod(quad a, quad b) {
    exact x;
    x_zero(&x);
    x_add_qprod(&x, a, b, 0);
    return x;
}

/* The value to about 64 bits before its rounding: enough to size an error. */
static inline double x_approx(const exact *x) {
    exact t = *x;
    int neg = x_negative(&t), i = X_WORDS - 1;
    if (neg) x_negate(&t);
    while (i >= 2 && t.w[i] == 0) --i;
    double v = ((double)t.w[i] * 4294967296.0 + t.w[i - 1]) * 4294967296.0 + t.w[i - 2];
    int k = 32 * (i - 2) - X_LOW;
    v = v * x_pow2(k / 2) * x_pow2(k - k / 2);
    return neg ? -v : v;
}

/* |err| / |ref| in units of 2^-106. */
static inline double x_units(const exact *err, const exact *ref) {
    return x_fabs(x_approx(err)) / x_fabs(x_approx(ref)) * x_pow2(106);
}

/* The tests' own generator, so that runs repeat. */
static u64 x_state = 0x9E3779B97F4A7C15ull;
static inline u64 x_next(void) {
    x_state ^= x_state << 13;
    x_state ^= x_state >> 7;
    return x_state ^= x_state << 17;
}

/* Random sign, exponent in [lo_e, hi_e], random significand. */
static inline double x_random_double(int lo_e, int hi_e) {
    u64 r = x_next();
    int e = lo_e + (int)((r >> 53) % (unsigned)(hi_e - lo_e + 1));
    double d = (1.0 + (double)(r & 0xFFFFFFFFFFFFFull) * x_pow2(-52)) * x_pow2(e);
    return (r >> 52) & 1 ? -d : d;
}

/* A random normalised pair, lo anywhere within half an ulp of hi. */
static inline quad x_random_quad(int lo_e, int hi_e) {
    double h = x_random_double(lo_e, hi_e);
    double l = h * (double)((long long)x_next() >> 11) * x_pow2(-106);
    double s = h + l;
    return Q(s, l - (s - h));
}

static inline int x_normalised(quad q) { return q.hi + q.lo == q.hi; }

#endif

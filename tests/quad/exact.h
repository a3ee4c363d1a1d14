/* Exact reference arithmetic for the quad tests: a two's complement fixed-
   point number of 40 words whose lowest bit weighs 2^-640 and whose top
   bit is the sign at 2^639. A double or a product of two doubles whose last
   significand bit lies at or above 2^-640 is held exactly (for a product
   of two doubles in 2^-250..2^250, say), so the sums of products that a
   double-double operation is made of can be formed without error. */
#ifndef ORV_TEST_EXACT_H
#define ORV_TEST_EXACT_H

#include <quad.h>

#include "harness.h"

#define X_WORDS 40
#define X_LOW 640

typedef struct { unsigned w[X_WORDS]; } exact;

typedef union { double d; unsigned long long u; } x_bits;

static unsigned long long x_bits_of(double d) { x_bits b; b.d = d; return b.u; }
static double x_double_of(unsigned long long u) { x_bits b; b.u = u; return b.d; }

/* 2^k for a normal k. */
static double x_pow2(int k) { return x_double_of((unsigned long long)(k + 1023) << 52); }

static void x_zero(exact *x) { for (int i = 0; i < X_WORDS; ++i) x->w[i] = 0; }

static void x_negate(exact *x) {
    unsigned long long c = 1;
    for (int i = 0; i < X_WORDS; ++i) {
        c += (unsigned long long)(unsigned)~x->w[i];
        x->w[i] = (unsigned)c;
        c >>= 32;
    }
}

static int x_negative(const exact *x) { return (x->w[X_WORDS - 1] >> 31) != 0; }

/* x += sign * (the 4-word integer m) * 2^shift, shift counted from 2^-640. */
static void x_add_int(exact *x, const unsigned m[4], int shift, int negative) {
    exact t;
    x_zero(&t);
    int word = shift / 32, bit = shift % 32;
    for (int i = 0; i < 4; ++i) {
        unsigned long long v = (unsigned long long)m[i] << bit;
        if (word + i < X_WORDS) t.w[word + i] |= (unsigned)v;
        if (word + i + 1 < X_WORDS) t.w[word + i + 1] |= (unsigned)(v >> 32);
    }
    if (negative) x_negate(&t);
    unsigned long long c = 0;
    for (int i = 0; i < X_WORDS; ++i) {
        c += (unsigned long long)x->w[i] + t.w[i];
        x->w[i] = (unsigned)c;
        c >>= 32;
    }
}

/* Significand and exponent: d = m * 2^e with m an integer below 2^53. */
static void x_decompose(double d, unsigned long long *m, int *e, int *negative) {
    unsigned long long u = x_bits_of(d);
    int field = (int)((u >> 52) & 0x7FF);
    *negative = (int)(u >> 63);
    *m = u & 0xFFFFFFFFFFFFFull;
    if (field) *m |= 1ull << 52; else field = 1;
    *e = field - 1075;
}

/* x += sign * a * b, exactly. */
static void x_add_prod(exact *x, double a, double b, int negate) {
    unsigned long long ma, mb;
    int ea, eb, na, nb;
    x_decompose(a, &ma, &ea, &na);
    x_decompose(b, &mb, &eb, &nb);
    if (ma == 0 || mb == 0) return;
    /* Trailing zeros cost range, not precision: drop them. */
    while (!(ma & 1)) { ma >>= 1; ++ea; }
    while (!(mb & 1)) { mb >>= 1; ++eb; }
    unsigned a0 = (unsigned)ma, a1 = (unsigned)(ma >> 32);
    unsigned b0 = (unsigned)mb, b1 = (unsigned)(mb >> 32);
    unsigned long long p00 = (unsigned long long)a0 * b0, p01 = (unsigned long long)a0 * b1,
                       p10 = (unsigned long long)a1 * b0, p11 = (unsigned long long)a1 * b1;
    unsigned m[4];
    unsigned long long c = p00 & 0xFFFFFFFFu;
    m[0] = (unsigned)c;
    c = (p00 >> 32) + (p01 & 0xFFFFFFFFu) + (p10 & 0xFFFFFFFFu);
    m[1] = (unsigned)c;
    c = (c >> 32) + (p01 >> 32) + (p10 >> 32) + (p11 & 0xFFFFFFFFu);
    m[2] = (unsigned)c;
    m[3] = (unsigned)((c >> 32) + (p11 >> 32));
    if (ea + eb + X_LOW < 0) { t_check(0, "exact: below range", __FILE__, __LINE__); return; }
    x_add_int(x, m, ea + eb + X_LOW, (na ^ nb ^ negate) != 0);
}

static void x_add_d(exact *x, double d, int negate) { x_add_prod(x, d, 1.0, negate); }

static void x_add_q(exact *x, quad q, int negate) {
    x_add_d(x, q.hi, negate);
    x_add_d(x, q.lo, negate);
}

/* x += sign * a * b for quads, all four products. */
static void x_add_qprod(exact *x, quad a, quad b, int negate) {
    x_add_prod(x, a.hi, b.hi, negate);
    x_add_prod(x, a.hi, b.lo, negate);
    x_add_prod(x, a.lo, b.hi, negate);
    x_add_prod(x, a.lo, b.lo, negate);
}

/* The value as a double, to about 64 bits before its rounding: good enough
   to measure an error. */
static double x_approx(const exact *x) {
    exact t = *x;
    int neg = x_negative(&t);
    if (neg) x_negate(&t);
    int i = X_WORDS - 1;
    while (i >= 0 && t.w[i] == 0) --i;
    if (i < 0) return 0.0;
    double v = (double)t.w[i];
    if (i >= 1) v = v * 4294967296.0 + (double)t.w[i - 1];
    if (i >= 2) v = v * 4294967296.0 + (double)t.w[i - 2];
    int scale = 32 * (i - 2) - X_LOW;
    /* Apply 2^scale in steps that stay normal. */
    while (scale > 1000) { v *= x_pow2(1000); scale -= 1000; }
    while (scale < -1000) { v *= x_pow2(-1000); scale += 1000; }
    v *= x_pow2(scale);
    return neg ? -v : v;
}

static int x_is_zero(const exact *x) {
    for (int i = 0; i < X_WORDS; ++i)
        if (x->w[i]) return 0;
    return 1;
}

static double x_fabs(double d) { return d < 0 ? -d : d; }

/* |err| / |ref| in units of 2^-106 of ref. */
static double x_units(const exact *err, const exact *ref) {
    return x_fabs(x_approx(err)) / x_fabs(x_approx(ref)) * x_pow2(106);
}

/* A random generator of the tests' own, so runs repeat. */
static unsigned long long x_state = 0x9E3779B97F4A7C15ull;
static unsigned long long x_next(void) {
    x_state ^= x_state << 13;
    x_state ^= x_state >> 7;
    x_state ^= x_state << 17;
    return x_state;
}

/* A random double with a random sign and an exponent in [lo_e, hi_e]. */
static double x_random_double(int lo_e, int hi_e) {
    unsigned long long r = x_next();
    int e = lo_e + (int)((r >> 53) % (unsigned)(hi_e - lo_e + 1));
    double m = 1.0 + (double)(r & 0xFFFFFFFFFFFFFull) * x_pow2(-52);
    double d = m * x_pow2(e);
    return (r >> 52) & 1 ? -d : d;
}

/* A random normalised pair: the low part anywhere within half an ulp. */
static quad x_random_quad(int lo_e, int hi_e) {
    quad q;
    double h = x_random_double(lo_e, hi_e);
    double l = h * (double)((long long)x_next() >> 11) * x_pow2(-106);
    q.hi = h + l;
    q.lo = l - (q.hi - h);
    return q;
}

/* Whether lo is within half an ulp of hi. */
static int x_normalised(quad q) { return q.hi + q.lo == q.hi; }

#endif

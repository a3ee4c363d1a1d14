/* What the tests of the quad transcendental functions share: bit-exact
   comparison, the quad NaN, and the distance of two quads in units of
   2^-106 of the second. */
#ifndef ORV_TEST_QCHECK_H
#define ORV_TEST_QCHECK_H

#include <errno.h>
#include <math.h>

#include "exact.h"

#define NAN_BITS 0x7FF8000000000000ull
static const double INF = 1.0 / 0.0;

static inline int same(quad a, quad b) {
    return x_bits_of(a.hi) == x_bits_of(b.hi) && x_bits_of(a.lo) == x_bits_of(b.lo);
}
#define CHECK_Q(got, h, l) CHECK(same((got), Q((h), (l))))

static inline int is_quad_nan(quad q) {
    return x_bits_of(q.hi) == NAN_BITS && x_bits_of(q.lo) == 0;
}

/* |got - want| / |want| in units of 2^-106; 1e30 for a NaN. */
static inline double units(quad got, quad want) {
    quad d = qsub(got, want);
    double u = x_fabs(d.hi) / x_fabs(want.hi) * x_pow2(106);
    return u == u ? u : 1e30;
}

/* |got - want| in units of 2^-106 of a given scale. */
static inline double abs_units(quad got, quad want, double scale) {
    quad d = qsub(got, want);
    double u = x_fabs(d.hi) / scale * x_pow2(106);
    return u == u ? u : 1e30;
}

static inline double max_of(double a, double b) { return a > b ? a : b; }

#endif

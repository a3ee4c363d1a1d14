/* What the tests of the quad functions share: bit-exact comparison, the
   quad NaN, the distance of two quads in units of 2^-106 of the second, and
   tables of exact answers walked by one loop. */
#ifndef ORV_TEST_QCHECK_H
#define ORV_TEST_QCHECK_H

#include <errno.h>
#include <math.h>
#include <qcomplex.h>

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
#define QNAN Q(x_double_of(NAN_BITS), 0)

static inline qcomplex CQ(quad re, quad im) { qcomplex z = {re, im}; return z; }
static inline qcomplex C(double re, double im) { return CQ(Q(re, 0), Q(im, 0)); }
static inline int csame(qcomplex a, qcomplex b) { return same(a.re, b.re) && same(a.im, b.im); }

/* A table row: a call made as the table is built, with errno 0 before it,
   its result and the errno it left; and the result and errno it must give
   (ANY_ERRNO: not looked at). A real result is the real part of the row. */
#define ANY_ERRNO (-1)
typedef struct { qcomplex z; int err; } qoutcome;
static inline qoutcome qseen(quad q) { qoutcome o = {CQ(q, Q(0, 0)), errno}; return o; }
static inline qoutcome cseen(qcomplex z) { qoutcome o = {z, errno}; return o; }
typedef struct {
    const char *what, *what_errno;
    int line;
    qoutcome got;
    qcomplex want;
    int err;
} qrow;
/* The text is made here, before the names in the call are expanded. */
#define QROW_(text, seen, w, e) {text, text " errno", __LINE__, (errno = 0, seen), w, e}
#define QR(call, w) QROW_(#call, qseen(call), CQ(w, Q(0, 0)), 0)
#define QE(call, w, e) QROW_(#call, qseen(call), CQ(w, Q(0, 0)), e)
#define CR(call, w) QROW_(#call, cseen(call), w, 0)

static inline void check_qrows(const qrow *r, unsigned n, const char *file) {
    for (; n--; ++r) {
        t_check(csame(r->got.z, r->want), r->what, file, r->line);
        if (r->err != ANY_ERRNO) t_check_int(r->got.err, r->err, r->what_errno, file, r->line);
    }
}
#define CHECK_QROWS(rows) check_qrows(rows, sizeof rows / sizeof rows[0], __FILE__)

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

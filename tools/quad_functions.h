/* The quad functions whose accuracy is measured, by number: shared by the
   reference generator (tools/quad_refs.c, on the host), the accuracy tool
   and the quad reference test (built against liborv). Complex functions
   take and give (re, im) pairs; the real ones use re alone, and the second
   argument of powl and atan2l (y, x order) is the second pair's re. */
#ifndef ORV_TOOLS_QUAD_FUNCTIONS_H
#define ORV_TOOLS_QUAD_FUNCTIONS_H

enum { Q_EXPL, Q_LOGL, Q_LOG10L, Q_POWL,
       Q_SINL, Q_COSL, Q_TANL, Q_ASINL, Q_ACOSL, Q_ATANL, Q_ATAN2L, Q_SINHL, Q_COSHL, Q_TANHL,
       Q_CQMUL, Q_CQDIV, Q_CPOWL, Q_CSQRTL, Q_CEXPL, Q_CLOGL, Q_CSINL, Q_CCOSL, Q_COUNT };

static const char *const quad_names[Q_COUNT] = {
    "expl", "logl", "log10l", "powl",
    "sinl", "cosl", "tanl", "asinl", "acosl", "atanl", "atan2l", "sinhl", "coshl", "tanhl",
    "_orvane_cqmul", "_orvane_cqdiv", "_orvane_cpowl", "CSQRTL", "CEXPL", "CLOGL", "CSINL", "CCOSL"};

static inline int quad_binary(int fn) {
    return fn == Q_POWL || fn == Q_ATAN2L || fn == Q_CQMUL || fn == Q_CQDIV || fn == Q_CPOWL;
}
static inline int quad_complex(int fn) { return fn >= Q_CQMUL; }

#ifndef QUAD_FUNCTIONS_NAMES_ONLY
#include <math.h>
#include <qcomplex.h>

typedef qcomplex quad_pair;

static quad_pair quad_call(int fn, quad_pair x, quad_pair y) {
    quad_pair r;
    r.im.hi = r.im.lo = 0;
    switch (fn) {
    case Q_CQMUL: return _orvane_cqmul(x, y);
    case Q_CQDIV: return _orvane_cqdiv(x, y);
    case Q_CPOWL: return _orvane_cpowl(x, y);
    case Q_CSQRTL: return CSQRTL(x);
    case Q_CEXPL: return CEXPL(x);
    case Q_CLOGL: return CLOGL(x);
    case Q_CSINL: return CSINL(x);
    case Q_CCOSL: return CCOSL(x);
    case Q_EXPL: r.re = expl(x.re); break;
    case Q_LOGL: r.re = logl(x.re); break;
    case Q_LOG10L: r.re = log10l(x.re); break;
    case Q_POWL: r.re = powl(x.re, y.re); break;
    case Q_SINL: r.re = sinl(x.re); break;
    case Q_COSL: r.re = cosl(x.re); break;
    case Q_TANL: r.re = tanl(x.re); break;
    case Q_ASINL: r.re = asinl(x.re); break;
    case Q_ACOSL: r.re = acosl(x.re); break;
    case Q_ATANL: r.re = atanl(x.re); break;
    case Q_ATAN2L: r.re = atan2l(x.re, y.re); break;
    case Q_SINHL: r.re = sinhl(x.re); break;
    case Q_COSHL: r.re = coshl(x.re); break;
    default: r.re = tanhl(x.re); break;
    }
    return r;
}

static double quad_abs(double d) { return d < 0 ? -d : d; }

/* |(a, b)| without overflow. */
static double quad_magnitude(double a, double b) {
    a = quad_abs(a);
    b = quad_abs(b);
    double m = a > b ? a : b;
    if (m == 0) return 0;
    a /= m;
    b /= m;
    return m * sqrt(a * a + b * b);
}

/* The error of a result against a reference given as three doubles per
   part, relative to the reference's magnitude, in units of 2^-106. A NaN
   or an infinity where a number belongs counts as 1e30. */
static double quad_error_units(quad_pair got, const double ref[6]) {
    double re = ((got.re.hi - ref[0]) + (got.re.lo - ref[1])) - ref[2];
    double im = ((got.im.hi - ref[3]) + (got.im.lo - ref[4])) - ref[5];
    double e = quad_magnitude(re, im) / quad_magnitude(ref[0], ref[3]);
    if (!(e < 1e30 / 81129638414606681695789005144064.0)) return 1e30;
    return e * 81129638414606681695789005144064.0;  /* 2^106 */
}

/* The error of fn on one sample of 14 doubles: x, y, then the reference. */
static double quad_sample_units(int fn, const double w[14]) {
    quad_pair x, y;
    x.re.hi = w[0], x.re.lo = w[1], x.im.hi = w[2], x.im.lo = w[3];
    y.re.hi = w[4], y.re.lo = w[5], y.im.hi = w[6], y.im.lo = w[7];
    return quad_error_units(quad_call(fn, x, y), w + 8);
}
#endif

#endif

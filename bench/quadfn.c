/* The quad exponential, logarithm, power, sine and arctangent against the
   host's __float128 functions (libquadmath), from one source: built
   against liborv it calls the library's long double functions, built
   against the host expq, logq, powq, sinq and atanq. */
#include <stdio.h>

#include "bench.h"

#ifdef _ORV_DEFS_H
#include <math.h>
typedef quad real;
static real make(double x) { real r = {x, x * 1e-17}; return r; }
static real f_exp(real x) { return expl(x); }
static real f_log(real x) { return logl(x); }
static real f_pow(real x, real y) { return powl(x, y); }
static real f_sin(real x) { return sinl(x); }
static real f_atan(real x) { return atanl(x); }
static real add(real a, real b) { return qadd(a, b); }
static double lead(real a) { return a.hi; }
#else
#include <quadmath.h>
typedef __float128 real;
static real make(double x) { return (real)x + (real)(x * 1e-17); }
static real f_exp(real x) { return expq(x); }
static real f_log(real x) { return logq(x); }
static real f_pow(real x, real y) { return powq(x, y); }
static real f_sin(real x) { return sinq(x); }
static real f_atan(real x) { return atanq(x); }
static real add(real a, real b) { return a + b; }
static double lead(real a) { return (double)a; }
#endif

#define N 1024
#define ROUNDS 40
static real small[N], positive[N], wide[N], power[N];

static double uniform(unsigned *seed) {
    *seed = *seed * 1664525u + 1013904223u;
    return (*seed >> 8) * (1.0 / 16777216.0);
}

typedef real (*unary)(real);

static void time_unary(const char *name, unary f, const real *args) {
    real acc = make(0);
    double t = bench_now();
    for (int r = 0; r < ROUNDS; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, f(args[i]));
    bench_report(name, bench_now() - t);
    BENCH_KEEP(lead(acc));
}

int main(void) {
    unsigned seed = 11;
    for (int i = 0; i < N; ++i) {
        small[i] = make(-20 + 40 * uniform(&seed));        /* exp, sin */
        positive[i] = make(1e-3 + 1e3 * uniform(&seed));   /* log, pow base */
        wide[i] = make(-50 + 100 * uniform(&seed));        /* atan */
        power[i] = make(-10 + 20 * uniform(&seed));        /* pow exponent */
    }
    time_unary("expl", f_exp, small);
    time_unary("logl", f_log, positive);
    real acc = make(0);
    double t = bench_now();
    for (int r = 0; r < ROUNDS; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, f_pow(positive[i], power[i]));
    bench_report("powl", bench_now() - t);
    BENCH_KEEP(lead(acc));
    time_unary("sinl", f_sin, small);
    time_unary("atanl", f_atan, wide);
    return 0;
}

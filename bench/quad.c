/* The quad primitives against the host's __float128 (libquadmath), and
   floating-point formatting against the host's C library, from one source:
   built against liborv it uses the quad primitives, built against the host
   the compiler's __float128. The first four cases add each result into a
   running sum, so they time one chained addition with the named operation
   beside it; the _chain cases time the named operation alone, chained. */
#include <stdio.h>

#include "bench.h"

#ifdef _ORV_DEFS_H
#include <math.h>
#include <quad.h>
typedef quad real;
static real make(double x) { real r = {x, 0}; return r; }
static real add(real a, real b) { return qadd(a, b); }
static real mul(real a, real b) { return qmul(a, b); }
static real divide(real a, real b) { return qdiv(a, b); }
static real root(real a) { return sqrtl(a); }
static double lead(real a) { return a.hi; }
#else
#include <quadmath.h>
typedef __float128 real;
static real make(double x) { return x; }
static real add(real a, real b) { return a + b; }
static real mul(real a, real b) { return a * b; }
static real divide(real a, real b) { return a / b; }
static real root(real a) { return sqrtq(a); }
static double lead(real a) { return (double)a; }
#endif

#define N 1024
static real xs[N], ys[N], zs[N];

static void primitives(void) {
    unsigned seed = 7;
    for (int i = 0; i < N; ++i) {
        seed = seed * 1664525u + 1013904223u;
        xs[i] = divide(make(1.0 + (seed >> 8)), make(3.0));
        seed = seed * 1664525u + 1013904223u;
        ys[i] = divide(make(1.0 + (seed >> 12)), make(7.0));
        zs[i] = divide(make(8388608.0 + (seed >> 8)), make(12582912.0));  /* [2/3, 4/3) */
    }
    real acc = make(0);
    double t = bench_now();
    for (int r = 0; r < 1000; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, add(xs[i], ys[i]));
    bench_report("qadd", bench_now() - t);
    t = bench_now();
    for (int r = 0; r < 1000; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, mul(xs[i], ys[i]));
    bench_report("qmul", bench_now() - t);
    t = bench_now();
    for (int r = 0; r < 300; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, divide(xs[i], ys[i]));
    bench_report("qdiv", bench_now() - t);
    t = bench_now();
    for (int r = 0; r < 300; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, root(xs[i]));
    bench_report("sqrtl", bench_now() - t);
    BENCH_KEEP(lead(acc));

    /* Each result the next operand: the latency of one operation. A pass
       starts again from 1, so that products stay far from the range's
       ends. */
    t = bench_now();
    for (int r = 0; r < 1000; ++r)
        for (int i = 0; i < N; ++i) acc = add(acc, xs[i]);
    bench_report("qadd_chain", bench_now() - t);
    BENCH_KEEP(lead(acc));
    t = bench_now();
    for (int r = 0; r < 1000; ++r) {
        acc = make(1);
        for (int i = 0; i < N; ++i) acc = mul(acc, zs[i]);
        BENCH_KEEP(lead(acc));
    }
    bench_report("qmul_chain", bench_now() - t);
    t = bench_now();
    for (int r = 0; r < 300; ++r) {
        acc = make(1);
        for (int i = 0; i < N; ++i) acc = divide(acc, zs[i]);
        BENCH_KEEP(lead(acc));
    }
    bench_report("qdiv_chain", bench_now() - t);
}

static int (*volatile p_sprintf)(char *, const char *, ...) = sprintf;

static void formatting(void) {
    char buf[128];
    int n = 0;
    double v = 0.000123456789;
    double t = bench_now();
    for (int i = 0; i < 300000; ++i) n += p_sprintf(buf, "%g", v * (i + 1));
    bench_report("sprintf_g", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 300000; ++i) n += p_sprintf(buf, "%.17g", v * (i + 1));
    bench_report("sprintf_.17g", bench_now() - t);
    t = bench_now();
    for (int i = 0; i < 300000; ++i) n += p_sprintf(buf, "%f", v * (i + 1) * 1000.0);
    bench_report("sprintf_f", bench_now() - t);
    BENCH_KEEP(n);
}

int main(void) {
    primitives();
    formatting();
    return 0;
}

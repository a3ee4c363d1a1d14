/*
 * Speed of the double and float functions: each one called over a fixed
 * array of ordinary arguments. The calls go through pointers, so that
 * neither build folds or opens them inline and both call the library.
 *
 * The compiler passes a double that it reads from memory as two 32-bit
 * pushes. A callee that loads it back as one 8-byte value cannot have it
 * forwarded from those two stores and waits until they retire, which
 * chains each call behind the whole of the one before. The cases named
 * "<function>_reg" pass a computed value instead, stored in one piece, as
 * callers do with a result still in a register.
 */
#include <math.h>

#include "bench.h"

enum { N = 1024, PASSES = 2000 };

static double xs[N], ys[N], ps[N], us[N];
static volatile double unity = 1.0;
static float xf[N], yf[N], pf[N], uf[N];

typedef double (*fn1)(double);
typedef double (*fn2)(double, double);
typedef float (*ff1)(float);
typedef float (*ff2)(float, float);

static void run1(const char *name, fn1 volatile f, const double *in) {
    fn1 g = f;
    double sum = 0, t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(in[i]);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

static void run2(const char *name, fn2 volatile f, const double *a, const double *b) {
    fn2 g = f;
    double sum = 0, t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(a[i], b[i]);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

/* The same with the argument computed: in[i] times a 1 the compiler cannot
   see through, stored whole into the argument slot. */
static void run1_reg(const char *name, fn1 volatile f, const double *in) {
    fn1 g = f;
    double one = unity, sum = 0, t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(in[i] * one);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

static void run2_reg(const char *name, fn2 volatile f, const double *a, const double *b) {
    fn2 g = f;
    double one = unity, sum = 0, t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(a[i] * one, b[i] * one);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

static void runf1(const char *name, ff1 volatile f, const float *in) {
    ff1 g = f;
    float sum = 0;
    double t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(in[i]);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

static void runf2(const char *name, ff2 volatile f, const float *a, const float *b) {
    ff2 g = f;
    float sum = 0;
    double t0 = bench_now();
    for (int p = 0; p < PASSES; ++p)
        for (int i = 0; i < N; ++i) sum += g(a[i], b[i]);
    bench_report(name, bench_now() - t0);
    BENCH_KEEP(sum);
}

int main(void) {
    unsigned s = 12345;
    for (int i = 0; i < N; ++i) {
        s = s * 1103515245u + 12345u;
        double u = (s >> 8) * (1.0 / 16777216);  /* [0, 1) */
        s = s * 1103515245u + 12345u;
        double v = (s >> 8) * (1.0 / 16777216);
        xs[i] = (u - 0.5) * 20;        /* [-10, 10] */
        ys[i] = (v - 0.5) * 20;
        ps[i] = 0.01 + u * 100;        /* positive */
        us[i] = u * 2 - 1;             /* [-1, 1] */
        xf[i] = (float)xs[i];
        yf[i] = (float)ys[i];
        pf[i] = (float)ps[i];
        uf[i] = (float)us[i];
    }
    run1("exp", exp, xs);
    run1("log", log, ps);
    run1("log10", log10, ps);
    run1("sqrt", sqrt, ps);
    run1("sin", sin, xs);
    run1("cos", cos, xs);
    run1("tan", tan, xs);
    run1("asin", asin, us);
    run1("atan", atan, xs);
    run1("sinh", sinh, xs);
    run1("tanh", tanh, xs);
    run2("atan2", atan2, xs, ys);
    run2("pow", pow, ps, xs);
    run1("floor", floor, xs);
    run1_reg("exp_reg", exp, xs);
    run1_reg("log_reg", log, ps);
    run1_reg("sqrt_reg", sqrt, ps);
    run1_reg("sin_reg", sin, xs);
    run1_reg("cos_reg", cos, xs);
    run2_reg("atan2_reg", atan2, xs, ys);
    run2_reg("pow_reg", pow, ps, xs);
    runf1("expf", expf, xf);
    runf1("logf", logf, pf);
    runf1("sqrtf", sqrtf, pf);
    runf1("sinf", sinf, xf);
    runf1("cosf", cosf, xf);
    runf1("atanf", atanf, xf);
    runf2("atan2f", atan2f, xf, yf);
    runf2("powf", powf, pf, xf);
    return 0;
}

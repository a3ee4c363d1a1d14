/*
 * Host program (MPFR) that writes reference values of the quad functions:
 * arguments drawn by a fixed generator from each range as normalised pairs
 * with random low parts, and the exact results rounded to 212 bits, stored
 * as three doubles per part.
 *
 *   cc tools/quad_refs.c -lmpfr -lgmp -o quad_refs
 *   ./quad_refs header 24 FILE      (the sample the tests build from)
 *   ./quad_refs binary 5000 FILE    (the accuracy tool's)
 *
 * A sample is 14 words: x (re.hi, re.lo, im.hi, im.lo), y (the same) and
 * the result (re in three doubles, then im in three). The binary file is a
 * sequence of cases, each a header of four 32-bit words (function, range
 * index, count, 0) and a 64-byte name, then count samples of 14 doubles.
 */
#include <math.h>
#include <mpfr.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define QUAD_FUNCTIONS_NAMES_ONLY
#include "quad_functions.h"

/* Arguments: x uniform in [lo, hi] (log-uniform when `log` is set), y in
   [ylo, yhi]. For complex functions both parts of y come from its range,
   and so do both parts of x unless the imaginary part has a range of its
   own, [ilo, ihi]. */
struct range { double lo, hi; int log; double ylo, yhi, ilo, ihi; };
enum { HEADER = 1, BINARY = 2, BOTH = 3 };
struct kase { int fn; struct range r; const char *text; int where; };

static const struct kase cases[] = {
    {Q_EXPL, {-1, 1}, "[-1, 1]", BOTH},
    {Q_EXPL, {-650, 700}, "[-650, 700]", BOTH},
    {Q_LOGL, {0.5, 2}, "[0.5, 2]", BOTH},
    {Q_LOGL, {1e-280, 1e300, 1}, "1e-280..1e300, log-uniform", BOTH},
    {Q_LOG10L, {1e-280, 1e300, 1}, "1e-280..1e300, log-uniform", BOTH},
    {Q_POWL, {0.5, 2, 0, -4, 4}, "x [0.5, 2], y [-4, 4]", BOTH},
    {Q_POWL, {0.01, 100, 1, -40, 40}, "x 0.01..100 log-uniform, y [-40, 40]", BOTH},
    /* Near a zero of sine or cosine the absolute error of the reduction
       (the stored pi is about 1e-31 from pi) grows without bound relative
       to the result: the wide ranges go to the tool only. */
    {Q_SINL, {-1.5, 1.5}, "[-1.5, 1.5]", BOTH},
    {Q_SINL, {-3, 3}, "[-3, 3]", BOTH},
    {Q_SINL, {-1000, 1000}, "[-1000, 1000]", BINARY},
    {Q_COSL, {-1.4, 1.4}, "[-1.4, 1.4]", BOTH},
    {Q_COSL, {-1000, 1000}, "[-1000, 1000]", BINARY},
    {Q_TANL, {-1.5, 1.5}, "[-1.5, 1.5]", BOTH},
    {Q_ASINL, {-1, 1}, "[-1, 1]", BOTH},
    {Q_ACOSL, {-1, 1}, "[-1, 1]", BOTH},
    {Q_ATANL, {-10, 10}, "[-10, 10]", BOTH},
    {Q_ATANL, {1e-10, 1e10, 1}, "1e-10..1e10, log-uniform", BOTH},
    /* One Newton step on the tangent: the error grows with |y/x|. */
    {Q_ATAN2L, {-10, 10, 0, 1, 10}, "y [-10, 10], x [1, 10]", BOTH},
    {Q_ATAN2L, {-10, 10, 0, -10, 10}, "[-10, 10] x [-10, 10]", BINARY},
    {Q_SINHL, {-1, 1}, "[-1, 1]", BOTH},
    {Q_SINHL, {-650, 650}, "[-650, 650]", BOTH},
    {Q_COSHL, {-650, 650}, "[-650, 650]", BOTH},
    {Q_TANHL, {-1, 1}, "[-1, 1]", BOTH},
    {Q_TANHL, {-10, 10}, "[-10, 10]", BOTH},
    {Q_CQMUL, {-10, 10, 0, -10, 10}, "[-10, 10]^2 x [-10, 10]^2", BOTH},
    {Q_CQDIV, {-10, 10, 0, -10, 10}, "[-10, 10]^2 x [-10, 10]^2", BOTH},
    /* The argument of x by atan2l: its error grows with |im/re|. */
    {Q_CPOWL, {0.5, 3, 0, -3, 3, -3, 3}, "x [0.5, 3] x [-3, 3], y [-3, 3]^2", BOTH},
    {Q_CPOWL, {-3, 3, 0, -3, 3}, "x [-3, 3]^2, y [-3, 3]^2", BINARY},
    {Q_CSQRTL, {-10, 10}, "[-10, 10]^2", BOTH},
    {Q_CEXPL, {-10, 10}, "[-10, 10]^2", BOTH},
    {Q_CLOGL, {0.5, 10, 0, 0, 0, -10, 10}, "[0.5, 10] x [-10, 10]", BOTH},
    {Q_CLOGL, {-10, 10}, "[-10, 10]^2", BINARY},
    {Q_CSINL, {-3, 3}, "[-3, 3]^2", BOTH},
    {Q_CCOSL, {-3, 3}, "[-3, 3]^2", BOTH},
};
#define NCASES (sizeof cases / sizeof cases[0])

#define PREC 212   /* the precision of the references */
#define WORK 480   /* of the inputs and of composite formulas */

static uint64_t state = 0x9E3779B97F4A7C15ULL;
static double uniform(void) { /* [0, 1) */
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return (double)(state >> 11) * 0x1p-53;
}
static double draw(double lo, double hi, int logscale) {
    if (logscale) return exp(log(lo) + (log(hi) - log(lo)) * uniform());
    return lo + (hi - lo) * uniform();
}
/* A normalised pair around v with a random low part. */
static void draw_quad(double v, double q[2]) {
    double l = v * (uniform() - 0.5) * 0x1p-53;
    double s = v + l;
    q[0] = s;
    q[1] = l - (s - v);
}

static uint64_t dbits(double d) { uint64_t u; memcpy(&u, &d, 8); return u; }

static void set_quad(mpfr_t r, const double q[2]) {
    mpfr_set_d(r, q[0], MPFR_RNDN);
    mpfr_add_d(r, r, q[1], MPFR_RNDN);
}

/* v as three doubles, each the rounded rest of the ones before. */
static void split3(mpfr_t v, double out[3]) {
    mpfr_t t;
    mpfr_init2(t, WORK);
    mpfr_set(t, v, MPFR_RNDN);
    for (int i = 0; i < 3; ++i) {
        out[i] = mpfr_get_d(t, MPFR_RNDN);
        mpfr_sub_d(t, t, out[i], MPFR_RNDN);
    }
    mpfr_clear(t);
}

/* Whether a result's parts are finite and far enough from both ends of the
   range that a low part does not underflow. */
static int usable(mpfr_t v) {
    if (mpfr_zero_p(v)) return 1;
    if (!mpfr_number_p(v)) return 0;
    double a = fabs(mpfr_get_d(v, MPFR_RNDN));
    return a > 1e-280 && a < 1e300;
}

/* The exact function value rounded to PREC bits; answers 0 when the sample
   cannot be used. */
static int reference(int fn, const double x[4], const double y[4], double out[6]) {
    mpfr_t xr, xi, yr, yi, r, i, t, u;
    mpfr_inits2(WORK, xr, xi, yr, yi, r, i, t, u, (mpfr_ptr)0);
    set_quad(xr, x);
    set_quad(xi, x + 2);
    set_quad(yr, y);
    set_quad(yi, y + 2);
    mpfr_set_zero(i, 1);
    switch (fn) {
    case Q_EXPL: mpfr_exp(r, xr, MPFR_RNDN); break;
    case Q_LOGL: mpfr_log(r, xr, MPFR_RNDN); break;
    case Q_LOG10L: mpfr_log10(r, xr, MPFR_RNDN); break;
    case Q_POWL: mpfr_pow(r, xr, yr, MPFR_RNDN); break;
    case Q_SINL: mpfr_sin(r, xr, MPFR_RNDN); break;
    case Q_COSL: mpfr_cos(r, xr, MPFR_RNDN); break;
    case Q_TANL: mpfr_tan(r, xr, MPFR_RNDN); break;
    case Q_ASINL: mpfr_asin(r, xr, MPFR_RNDN); break;
    case Q_ACOSL: mpfr_acos(r, xr, MPFR_RNDN); break;
    case Q_ATANL: mpfr_atan(r, xr, MPFR_RNDN); break;
    case Q_ATAN2L: mpfr_atan2(r, xr, yr, MPFR_RNDN); break; /* xr is y, yr is x */
    case Q_SINHL: mpfr_sinh(r, xr, MPFR_RNDN); break;
    case Q_COSHL: mpfr_cosh(r, xr, MPFR_RNDN); break;
    case Q_TANHL: mpfr_tanh(r, xr, MPFR_RNDN); break;
    case Q_CQMUL:
        mpfr_mul(r, xr, yr, MPFR_RNDN);
        mpfr_mul(t, xi, yi, MPFR_RNDN);
        mpfr_sub(r, r, t, MPFR_RNDN);
        mpfr_mul(i, xr, yi, MPFR_RNDN);
        mpfr_mul(t, xi, yr, MPFR_RNDN);
        mpfr_add(i, i, t, MPFR_RNDN);
        break;
    case Q_CQDIV:
        mpfr_sqr(u, yr, MPFR_RNDN);
        mpfr_sqr(t, yi, MPFR_RNDN);
        mpfr_add(u, u, t, MPFR_RNDN);
        mpfr_mul(r, xr, yr, MPFR_RNDN);
        mpfr_mul(t, xi, yi, MPFR_RNDN);
        mpfr_add(r, r, t, MPFR_RNDN);
        mpfr_div(r, r, u, MPFR_RNDN);
        mpfr_mul(i, xi, yr, MPFR_RNDN);
        mpfr_mul(t, xr, yi, MPFR_RNDN);
        mpfr_sub(i, i, t, MPFR_RNDN);
        mpfr_div(i, i, u, MPFR_RNDN);
        break;
    case Q_CPOWL: /* e^(y log x): A + iB = y (ln|x| + i arg x) */
        mpfr_hypot(t, xr, xi, MPFR_RNDN);
        mpfr_log(t, t, MPFR_RNDN);
        mpfr_atan2(u, xi, xr, MPFR_RNDN);
        mpfr_mul(r, t, yr, MPFR_RNDN);
        mpfr_mul(i, u, yi, MPFR_RNDN);
        mpfr_sub(r, r, i, MPFR_RNDN);  /* A */
        mpfr_mul(t, t, yi, MPFR_RNDN);
        mpfr_mul(u, u, yr, MPFR_RNDN);
        mpfr_add(u, t, u, MPFR_RNDN);  /* B */
        mpfr_exp(t, r, MPFR_RNDN);
        mpfr_sin_cos(i, r, u, MPFR_RNDN);
        mpfr_mul(r, r, t, MPFR_RNDN);
        mpfr_mul(i, i, t, MPFR_RNDN);
        break;
    case Q_CSQRTL: /* the principal root, without cancellation */
        mpfr_hypot(t, xr, xi, MPFR_RNDN);
        if (mpfr_sgn(xr) >= 0) mpfr_add(t, t, xr, MPFR_RNDN);
        else mpfr_sub(t, t, xr, MPFR_RNDN);
        mpfr_div_2ui(t, t, 1, MPFR_RNDN);
        mpfr_sqrt(t, t, MPFR_RNDN);          /* w */
        mpfr_abs(u, xi, MPFR_RNDN);
        mpfr_div(u, u, t, MPFR_RNDN);
        mpfr_div_2ui(u, u, 1, MPFR_RNDN);    /* |b|/(2w) */
        if (mpfr_sgn(xr) >= 0) mpfr_swap(t, u);
        mpfr_set(r, u, MPFR_RNDN);
        mpfr_set(i, t, MPFR_RNDN);
        if (mpfr_sgn(xi) < 0) mpfr_neg(i, i, MPFR_RNDN);
        break;
    case Q_CEXPL:
        mpfr_exp(t, xr, MPFR_RNDN);
        mpfr_sin_cos(i, r, xi, MPFR_RNDN);
        mpfr_mul(r, r, t, MPFR_RNDN);
        mpfr_mul(i, i, t, MPFR_RNDN);
        break;
    case Q_CLOGL:
        mpfr_hypot(r, xr, xi, MPFR_RNDN);
        mpfr_log(r, r, MPFR_RNDN);
        mpfr_atan2(i, xi, xr, MPFR_RNDN);
        break;
    case Q_CSINL: /* sin x cosh y + i cos x sinh y */
    case Q_CCOSL: /* cos x cosh y - i sin x sinh y */
        mpfr_sin_cos(t, u, xr, MPFR_RNDN);
        mpfr_cosh(r, xi, MPFR_RNDN);
        mpfr_sinh(i, xi, MPFR_RNDN);
        if (fn == Q_CSINL) {
            mpfr_mul(r, r, t, MPFR_RNDN);
            mpfr_mul(i, i, u, MPFR_RNDN);
        } else {
            mpfr_mul(r, r, u, MPFR_RNDN);
            mpfr_mul(i, i, t, MPFR_RNDN);
            mpfr_neg(i, i, MPFR_RNDN);
        }
        break;
    }
    mpfr_prec_round(r, PREC, MPFR_RNDN);
    mpfr_prec_round(i, PREC, MPFR_RNDN);
    int ok = usable(r) && usable(i) && !(mpfr_zero_p(r) && mpfr_zero_p(i));
    split3(r, out);
    split3(i, out + 3);
    mpfr_clears(xr, xi, yr, yi, r, i, t, u, (mpfr_ptr)0);
    return ok;
}

int main(int argc, char **argv) {
    if (argc < 4) { fprintf(stderr, "usage: quad_refs header|binary count file\n"); return 2; }
    int header = strcmp(argv[1], "header") == 0;
    int count = atoi(argv[2]);
    FILE *out = fopen(argv[3], "wb");
    if (!out) { perror(argv[3]); return 1; }
    if (header)
        fprintf(out, "/* Generated by tools/quad_refs.c (MPFR, results rounded to %d bits):\n"
                     "   %d arguments per range. Do not edit. */\n"
                     "struct quad_ref_case { int fn; const char *range; int count;\n"
                     "                       const unsigned long long (*v)[14]; };\n",
                PREC, count);
    for (unsigned c = 0; c < NCASES; ++c) {
        const struct kase *k = &cases[c];
        if (!(k->where & (header ? HEADER : BINARY))) continue;
        if (header) {
            fprintf(out, "static const unsigned long long quad_ref_%u[][14] = {\n", c);
        } else {
            uint32_t head[4] = {(uint32_t)k->fn, c, (uint32_t)count, 0};
            char name[64] = {0};
            snprintf(name, sizeof name, "%s %s", quad_names[k->fn], k->text);
            fwrite(head, 4, 4, out);
            fwrite(name, 1, sizeof name, out);
        }
        for (int n = 0; n < count;) {
            double x[4] = {0}, y[4] = {0}, ref[6];
            int parts = quad_complex(k->fn) ? 2 : 1;
            for (int p = 0; p < parts; ++p) {
                int own = p == 1 && k->r.ilo < k->r.ihi;
                draw_quad(own ? draw(k->r.ilo, k->r.ihi, 0) : draw(k->r.lo, k->r.hi, k->r.log), x + 2 * p);
                if (quad_binary(k->fn)) draw_quad(draw(k->r.ylo, k->r.yhi, 0), y + 2 * p);
            }
            if (!reference(k->fn, x, y, ref)) continue;
            double rec[14];
            memcpy(rec, x, sizeof x);
            memcpy(rec + 4, y, sizeof y);
            memcpy(rec + 8, ref, sizeof ref);
            if (header) {
                fprintf(out, "    {");
                for (int w = 0; w < 14; ++w)
                    fprintf(out, "0x%016llXULL%s", (unsigned long long)dbits(rec[w]), w < 13 ? ", " : "},\n");
            } else {
                fwrite(rec, 8, 14, out);
            }
            ++n;
        }
        if (header) fprintf(out, "};\n");
    }
    if (header) {
        fprintf(out, "static const struct quad_ref_case quad_ref_cases[] = {\n");
        for (unsigned c = 0; c < NCASES; ++c)
            if (cases[c].where & HEADER)
                fprintf(out, "    {%d, \"%s %s\", %d, quad_ref_%u},\n", cases[c].fn,
                        quad_names[cases[c].fn], cases[c].text, count, c);
        fprintf(out, "};\n");
    }
    fclose(out);
    return 0;
}

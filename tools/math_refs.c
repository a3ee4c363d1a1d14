/*
 * Host program (MPFR) that writes reference values of the transcendental
 * functions: inputs drawn by a fixed generator from each range, and the
 * results correctly rounded to double or float.
 *
 *   cc tools/math_refs.c -lmpfr -lgmp -o math_refs
 *   ./math_refs header 24 FILE   (the sample the tests build from)
 *   ./math_refs binary 20000 refs.bin                 (the accuracy tool's)
 *
 * The binary file is a sequence of cases, each a header of four 32-bit
 * words (function id, float flag, range index, count) and a 64-byte name,
 * followed by count
 * records of four 64-bit words: x and y (floats widened to double), the
 * correctly rounded result (a float's own 32-bit pattern for the float
 * family), and the double nearest to the exact value minus that result.
 */
#include <math.h>
#include <mpfr.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { F_EXP, F_LOG, F_LOG10, F_SQRT, F_SIN, F_COS, F_TAN, F_ASIN, F_ACOS, F_ATAN,
       F_SINH, F_COSH, F_TANH, F_ATAN2, F_POW, F_COUNT };
static const char *names[F_COUNT] = {"exp", "log", "log10", "sqrt", "sin", "cos", "tan",
                                     "asin", "acos", "atan", "sinh", "cosh", "tanh",
                                     "atan2", "pow"};

/* A range: uniform in [lo, hi], or log-uniform when `log` is set; two
   arguments take the second range for y. */
struct range { double lo, hi; int log; double ylo, yhi; };
/* Where a case goes: the test's header, the accuracy tool's file, or both.
   The wide ranges of sin and cos go to the tool only: near the zeros of
   the function the two-part pi of the reduction leaves an absolute error
   that no bound in ulps covers, and the test checks the ordinary ranges. */
enum { HEADER = 1, BINARY = 2, BOTH = 3 };
struct kase { int fn, single; struct range r; const char *text; int where; };

static const struct kase cases[] = {
    {F_EXP, 0, {-1, 1}, "[-1, 1]", BOTH},
    {F_EXP, 0, {-700, 700}, "[-700, 700]", BOTH},
    {F_LOG, 0, {0.5, 2}, "[0.5, 2]", BOTH},
    {F_LOG, 0, {1e-300, 1e300, 1}, "1e-300..1e300, log-uniform", BOTH},
    {F_LOG10, 0, {1e-300, 1e300, 1}, "1e-300..1e300, log-uniform", BOTH},
    {F_SQRT, 0, {1e-300, 1e300, 1}, "1e-300..1e300, log-uniform", BOTH},
    {F_SIN, 0, {-3.2, 3.2}, "[-3.2, 3.2]", BINARY},
    {F_SIN, 0, {-3, 3}, "[-3, 3]", BOTH},
    {F_SIN, 0, {-1000, 1000}, "[-1000, 1000]", BINARY},
    {F_COS, 0, {-3.2, 3.2}, "[-3.2, 3.2]", BINARY},
    {F_COS, 0, {-1.4, 1.4}, "[-1.4, 1.4]", BOTH},
    {F_COS, 0, {-1000, 1000}, "[-1000, 1000]", BINARY},
    {F_TAN, 0, {-1.5, 1.5}, "[-1.5, 1.5]", BOTH},
    {F_ASIN, 0, {-1, 1}, "[-1, 1]", BOTH},
    {F_ACOS, 0, {-1, 1}, "[-1, 1]", BOTH},
    {F_ATAN, 0, {-10, 10}, "[-10, 10]", BOTH},
    {F_SINH, 0, {-1, 1}, "[-1, 1]", BOTH},
    {F_SINH, 0, {-700, 700}, "[-700, 700]", BOTH},
    {F_COSH, 0, {-700, 700}, "[-700, 700]", BOTH},
    {F_TANH, 0, {-10, 10}, "[-10, 10]", BOTH},
    {F_ATAN2, 0, {-10, 10, 0, -10, 10}, "[-10, 10] x [-10, 10]", BOTH},
    {F_POW, 0, {0.01, 100, 1, -40, 40}, "x 0.01..100 log-uniform, y [-40, 40]", BOTH},
    {F_EXP, 1, {-87, 88}, "[-87, 88]", BOTH},
    {F_LOG, 1, {0.5, 2}, "[0.5, 2]", BOTH},
    {F_LOG, 1, {1e-37, 1e37, 1}, "1e-37..1e37, log-uniform", BOTH},
    {F_LOG10, 1, {1e-37, 1e37, 1}, "1e-37..1e37, log-uniform", BOTH},
    {F_SQRT, 1, {1e-37, 1e37, 1}, "1e-37..1e37, log-uniform", BOTH},
    {F_SIN, 1, {-3.2, 3.2}, "[-3.2, 3.2]", BINARY},
    {F_SIN, 1, {-3, 3}, "[-3, 3]", BOTH},
    {F_SIN, 1, {-100, 100}, "[-100, 100]", BINARY},
    {F_COS, 1, {-3.2, 3.2}, "[-3.2, 3.2]", BINARY},
    {F_COS, 1, {-1.4, 1.4}, "[-1.4, 1.4]", BOTH},
    {F_TAN, 1, {-1.5, 1.5}, "[-1.5, 1.5]", BOTH},
    {F_ASIN, 1, {-1, 1}, "[-1, 1]", BOTH},
    {F_ACOS, 1, {-1, 1}, "[-1, 1]", BOTH},
    {F_ATAN, 1, {-10, 10}, "[-10, 10]", BOTH},
    {F_SINH, 1, {-10, 10}, "[-10, 10]", BOTH},
    {F_COSH, 1, {-10, 10}, "[-10, 10]", BOTH},
    {F_TANH, 1, {-5, 5}, "[-5, 5]", BOTH},
    {F_ATAN2, 1, {-10, 10, 0, -10, 10}, "[-10, 10] x [-10, 10]", BOTH},
    {F_POW, 1, {0.1, 10, 1, -20, 20}, "x 0.1..10 log-uniform, y [-20, 20]", BOTH},
};
#define NCASES (sizeof cases / sizeof cases[0])

static uint64_t state = 0x9E3779B97F4A7C15ULL;
static double uniform(void) { /* [0, 1) */
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return (double)(state >> 11) * 0x1p-53;
}
static double draw(double lo, double hi, int logscale, int single) {
    double v = lo + (hi - lo) * uniform();
    if (logscale) {
        /* exp of a double lies so close to ln's own doubles that the
           logarithm would be tested on easy cases: fresh low bits */
        v = exp(log(lo) + (log(hi) - log(lo)) * uniform());
        uint64_t b;
        memcpy(&b, &v, 8);
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        b ^= (state >> 32) & 0xFFFFFFFFULL;
        memcpy(&v, &b, 8);
    }
    return single ? (double)(float)v : v;
}

static uint64_t dbits(double d) { uint64_t u; memcpy(&u, &d, 8); return u; }
static uint64_t fbits(float f) { uint32_t u; memcpy(&u, &f, 4); return u; }

static uint64_t reference(int fn, int single, double x, double y, double *lo) {
    mpfr_t a, b, r;
    mpfr_inits2(256, a, b, r, (mpfr_ptr)0);
    mpfr_set_d(a, x, MPFR_RNDN);
    mpfr_set_d(b, y, MPFR_RNDN);
    switch (fn) {
    case F_EXP: mpfr_exp(r, a, MPFR_RNDN); break;
    case F_LOG: mpfr_log(r, a, MPFR_RNDN); break;
    case F_LOG10: mpfr_log10(r, a, MPFR_RNDN); break;
    case F_SQRT: mpfr_sqrt(r, a, MPFR_RNDN); break;
    case F_SIN: mpfr_sin(r, a, MPFR_RNDN); break;
    case F_COS: mpfr_cos(r, a, MPFR_RNDN); break;
    case F_TAN: mpfr_tan(r, a, MPFR_RNDN); break;
    case F_ASIN: mpfr_asin(r, a, MPFR_RNDN); break;
    case F_ACOS: mpfr_acos(r, a, MPFR_RNDN); break;
    case F_ATAN: mpfr_atan(r, a, MPFR_RNDN); break;
    case F_SINH: mpfr_sinh(r, a, MPFR_RNDN); break;
    case F_COSH: mpfr_cosh(r, a, MPFR_RNDN); break;
    case F_TANH: mpfr_tanh(r, a, MPFR_RNDN); break;
    case F_ATAN2: mpfr_atan2(r, a, b, MPFR_RNDN); break; /* a = y, b = x */
    case F_POW: mpfr_pow(r, a, b, MPFR_RNDN); break;
    }
    double hi = single ? (double)mpfr_get_flt(r, MPFR_RNDN) : mpfr_get_d(r, MPFR_RNDN);
    uint64_t out = single ? fbits((float)hi) : dbits(hi);
    mpfr_sub_d(r, r, hi, MPFR_RNDN);
    *lo = mpfr_get_d(r, MPFR_RNDN);
    mpfr_clears(a, b, r, (mpfr_ptr)0);
    return out;
}

/* Results the double family would take for overflow: kept out of the
   sample, since the edge tests own them. */
static int in_range(uint64_t r, int single) {
    return single ? ((r >> 23) & 0xFF) != 0xFF && ((r >> 23) & 0xFF) != 0
                  : ((r >> 52) & 0x7FF) != 0x7FF && ((r >> 52) & 0x7FF) != 0;
}

int main(int argc, char **argv) {
    if (argc < 3) { fprintf(stderr, "usage: math_refs header|binary count [file]\n"); return 2; }
    int header = strcmp(argv[1], "header") == 0;
    int count = atoi(argv[2]);
    FILE *out = argc > 3 ? fopen(argv[3], "wb") : stdout;
    if (!out) { perror(argv[3]); return 1; }
    if (header)
        fprintf(out, "/* Generated by tools/math_refs.c (MPFR, 256-bit working precision,\n"
                     "   results rounded to nearest): %d inputs per range. Do not edit. */\n"
                     "struct ref_case { int fn, single; const char *range; int count;\n"
                     "                  const unsigned long long (*v)[3]; };\n", count);
    for (unsigned c = 0; c < NCASES; ++c) {
        const struct kase *k = &cases[c];
        if (!(k->where & (header ? HEADER : BINARY))) continue;
        uint32_t head[4] = {(uint32_t)k->fn, (uint32_t)k->single, c, (uint32_t)count};
        if (header) fprintf(out, "static const unsigned long long ref_%u[][3] = {\n", c);
        else {
            char name[64] = {0};
            snprintf(name, sizeof name, "%s %s", names[k->fn], k->text);
            fwrite(head, 4, 4, out);
            fwrite(name, 1, sizeof name, out);
        }
        for (int i = 0; i < count;) {
            double x = draw(k->r.lo, k->r.hi, k->r.log, k->single), y = 0;
            if (k->fn == F_ATAN2 || k->fn == F_POW) y = draw(k->r.ylo, k->r.yhi, 0, k->single);
            double lo;
            uint64_t r = reference(k->fn, k->single, x, y, &lo);
            if (!in_range(r, k->single)) continue;
            uint64_t rec[4] = {dbits(x), dbits(y), r, dbits(lo)};
            if (header)
                fprintf(out, "    {0x%016llXULL, 0x%016llXULL, 0x%016llXULL},\n",
                        (unsigned long long)rec[0], (unsigned long long)rec[1],
                        (unsigned long long)rec[2]);
            else
                fwrite(rec, 8, 4, out);
            ++i;
        }
        if (header) fprintf(out, "};\n");
    }
    if (header) {
        fprintf(out, "static const struct ref_case ref_cases[] = {\n");
        for (unsigned c = 0; c < NCASES; ++c)
            if (cases[c].where & HEADER)
                fprintf(out, "    {%d, %d, \"%s %s\", %d, ref_%u},\n", cases[c].fn, cases[c].single,
                    names[cases[c].fn], cases[c].text, count, c);
        fprintf(out, "};\n");
    }
    if (out != stdout) fclose(out);
    return 0;
}

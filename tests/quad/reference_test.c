/* Values of the quad functions, real and complex, on ordinary arguments
   against MPFR references to 212 bits (quad_ref_values.h, made at build
   time by tools/quad_refs.c). Each range has a bound in units of 2^-106 of
   the result (of its modulus for complex results): the largest error that
   bench/quad_accuracy measured on 20000 arguments of that range
   (docs/MATH_ACCURACY.md), with some room. */
#include "harness.h"
#include "quad_ref_values.h"
#include "tools/quad_functions.h"

static const struct { const char *range; double bound; } bounds[] = {
    /* x / ln 2 and ln 2 itself carry errors that n magnifies */
    {"expl [-1, 1]", 4}, {"expl [-650, 700]", 2000},
    {"logl [0.5, 2]", 6}, {"logl 1e-280..1e300, log-uniform", 4},
    {"log10l 1e-280..1e300, log-uniform", 8},
    /* the error of y ln x, magnified by its size */
    {"powl x [0.5, 2], y [-4, 4]", 12}, {"powl x 0.01..100 log-uniform, y [-40, 40]", 400},
    /* near pi the error of the stored pi counts against a small result */
    {"sinl [-1.5, 1.5]", 8}, {"sinl [-3, 3]", 128}, {"cosl [-1.4, 1.4]", 10},
    {"tanl [-1.5, 1.5]", 24}, {"asinl [-1, 1]", 16}, {"acosl [-1, 1]", 16},
    {"atanl [-10, 10]", 8}, {"atanl 1e-10..1e10, log-uniform", 8},
    {"atan2l y [-10, 10], x [1, 10]", 12},
    /* below 0.05 the series, above it e^x - e^-x, which cancels */
    {"sinhl [-1, 1]", 24}, {"sinhl [-650, 650]", 2000}, {"coshl [-650, 650]", 2000},
    {"tanhl [-1, 1]", 6}, {"tanhl [-10, 10]", 4},
    {"_orvane_cqmul [-10, 10]^2 x [-10, 10]^2", 4}, {"_orvane_cqdiv [-10, 10]^2 x [-10, 10]^2", 6},
    {"_orvane_cpowl x [0.5, 3] x [-3, 3], y [-3, 3]^2", 64}, {"CSQRTL [-10, 10]^2", 6},
    /* sine and cosine of the imaginary part, reduced by the stored pi */
    {"CEXPL [-10, 10]^2", 64}, {"CLOGL [0.5, 10] x [-10, 10]", 16}, {"CSINL [-3, 3]^2", 128},
    {"CCOSL [-3, 3]^2", 512},
};

static int equal(const char *a, const char *b) {
    while (*a && *a == *b) ++a, ++b;
    return *a == *b;
}

static double bound_of(const char *range) {
    for (unsigned i = 0; i < sizeof bounds / sizeof bounds[0]; ++i)
        if (equal(bounds[i].range, range)) return bounds[i].bound;
    t_note(range);
    t_note("  has no bound");
    return -1;
}

int main(void) {
    for (unsigned c = 0; c < sizeof quad_ref_cases / sizeof quad_ref_cases[0]; ++c) {
        const struct quad_ref_case *k = &quad_ref_cases[c];
        t_section(k->range);
        double worst = 0;
        for (int i = 0; i < k->count; ++i) {
            union { unsigned long long u[14]; double d[14]; } w;
            for (int j = 0; j < 14; ++j) w.u[j] = k->v[i][j];
            double e = quad_sample_units(k->fn, w.d);
            if (e > worst) worst = e;
        }
        CHECK(worst <= bound_of(k->range));
    }
    return t_finish();
}

/* Values of the transcendental functions on ordinary arguments against
   correctly rounded references (math_ref_values.h, made with MPFR at build time by
   tools/math_refs.c). Each function must stay within the error its method
   has: a bound in units in the last place of the result, per family. */
#include "mathcheck.h"
#include "math_ref_values.h"
#include "tools/math_functions.h"


/* Largest distance allowed from the correctly rounded result, in ulps of
   double and of float: the largest error that tools/math_refs.c and
   bench/math_accuracy.c measured on 20000 arguments of each of these
   ranges, rounded up to a whole ulp (docs/MATH_ACCURACY.md). The ranges
   of sin and cos stay clear of the zeros, where the two-part pi of the
   reduction leaves an error that no bound in ulps covers. */
static const int bound_double[F_COUNT] = {
    /* exp log log10 sqrt sin cos tan asin acos atan sinh cosh tanh atan2 pow */
    2, 1, 2, 1, 2, 2, 3, 2, 2, 3, 2, 2, 2, 2, 5};
static const int bound_float[F_COUNT] = {
    1, 1, 2, 1, 1, 1, 3, 2, 1, 2, 2, 1, 1, 2, 2};


/* Distance in ulps between two finite values of one format, through
   their bit patterns laid out in order. */
static long long ordered(u64 bits, int single) {
    u64 sign = single ? 0x80000000ULL : 0x8000000000000000ULL;
    return (bits & sign) ? -(long long)(bits & ~sign) : (long long)bits;
}

int main(void) {
    for (unsigned c = 0; c < sizeof ref_cases / sizeof ref_cases[0]; ++c) {
        const struct ref_case *k = &ref_cases[c];
        long long worst = 0;
        t_section(k->range);
        for (int i = 0; i < k->count; ++i) {
            u64 got;
            if (k->single)
                got = BF(call_float(k->fn, (float)D(k->v[i][0]), (float)D(k->v[i][1])));
            else
                got = B(call_double(k->fn, D(k->v[i][0]), D(k->v[i][1])));
            long long e = ordered(got, k->single) - ordered(k->v[i][2], k->single);
            if (e < 0) e = -e;
            if (e > worst) worst = e;
        }
        int bound = (k->single ? bound_float : bound_double)[k->fn];
        /* reported as the worst error against its bound */
        t_check_int(worst > bound ? worst : bound, bound, "worst ulps", __FILE__, __LINE__);
    }
    return t_finish();
}

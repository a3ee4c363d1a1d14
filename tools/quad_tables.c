/*
 * Host program (MPFR) that prints the sine table of the quad trigonometric
 * kernel as C++ initialisers of bit patterns: entry k is sin(k pi/40) for
 * k = 0..20, as a pair (hi, lo) with hi the value rounded to double and lo
 * the rest rounded to double.
 *
 *   cc tools/quad_tables.c -lmpfr -lgmp -o quad_tables && ./quad_tables
 *
 * Its output is pasted into math/quad/qtrig.cpp.
 */
#include <mpfr.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

static uint64_t dbits(double d) { uint64_t u; memcpy(&u, &d, 8); return u; }

int main(void) {
    mpfr_t v, rest;
    mpfr_inits2(256, v, rest, (mpfr_ptr)0);
    for (int k = 0; k <= 20; ++k) {
        mpfr_const_pi(v, MPFR_RNDN);
        mpfr_mul_ui(v, v, (unsigned)k, MPFR_RNDN);
        mpfr_div_ui(v, v, 40, MPFR_RNDN);
        mpfr_sin(v, v, MPFR_RNDN);
        double hi = mpfr_get_d(v, MPFR_RNDN);
        mpfr_sub_d(rest, v, hi, MPFR_RNDN);
        double lo = mpfr_get_d(rest, MPFR_RNDN);
        printf("    pair(0x%016llX, 0x%016llX),  // %2d: %.17g\n", (unsigned long long)dbits(hi),
               (unsigned long long)dbits(lo), k, hi);
    }
    mpfr_clears(v, rest, (mpfr_ptr)0);
    return 0;
}

/*
 * Host program (MPFR) that prints the constant tables of the logarithm and
 * power functions as C++ initialisers of hexadecimal bit patterns:
 *
 *   cc tools/math_tables.c -lmpfr -lgmp -o math_tables && ./math_tables
 *
 * Its output is pasted into math/double/tables.cpp and math/float/tables.cpp.
 */
#include <mpfr.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

static uint64_t dbits(double d) { uint64_t u; memcpy(&u, &d, 8); return u; }
static uint32_t fbits(float f) { uint32_t u; memcpy(&u, &f, 4); return u; }

/* ln(1 + j/128) to 200 bits. */
static void ln_f(mpfr_t r, int j) {
    mpfr_set_ui(r, 128 + j, MPFR_RNDN);
    mpfr_div_ui(r, r, 128, MPFR_RNDN);
    mpfr_log(r, r, MPFR_RNDN);
}

/* The nearest multiple of 2^-k. */
static void round_to(mpfr_t out, mpfr_t v, int k) {
    mpfr_mul_2si(out, v, k, MPFR_RNDN);
    mpfr_rint(out, out, MPFR_RNDN);
    mpfr_div_2si(out, out, k, MPFR_RNDN);
}

static void log_tables(int single) {
    mpfr_t l, lead, t, inv;
    mpfr_inits2(200, l, lead, t, inv, (mpfr_ptr)0);
    const char *names[3] = {"inv", "lead", "trail"};
    for (int which = 0; which < 3; ++which) {
        printf("// %s[j], j = 0..128\n", names[which]);
        for (int j = 0; j <= 128; ++j) {
            ln_f(l, j);
            round_to(lead, l, single ? 16 : 39);
            mpfr_sub(t, l, lead, MPFR_RNDN);
            mpfr_set_ui(inv, 128, MPFR_RNDN);
            mpfr_div_ui(inv, inv, 128 + j, MPFR_RNDN);
            mpfr_ptr v = which == 0 ? inv : which == 1 ? lead : t;
            if (single)
                printf("0x%08X,%s", fbits(mpfr_get_flt(v, MPFR_RNDN)), j % 6 == 5 ? "\n" : " ");
            else
                printf("0x%016llX,%s", (unsigned long long)dbits(mpfr_get_d(v, MPFR_RNDN)),
                       j % 3 == 2 ? "\n" : " ");
        }
        printf("\n");
    }
    mpfr_clears(l, lead, t, inv, (mpfr_ptr)0);
}

static void pow_a1(int single) {
    mpfr_t v;
    mpfr_init2(v, 200);
    printf("// A1[j] = 2^(-j/16), j = 0..16\n");
    for (int j = 0; j <= 16; ++j) {
        mpfr_set_si(v, -j, MPFR_RNDN);
        mpfr_div_ui(v, v, 16, MPFR_RNDN);
        mpfr_exp2(v, v, MPFR_RNDN);
        if (single)
            printf("0x%08X,%s", fbits(mpfr_get_flt(v, MPFR_RNDN)), j % 6 == 5 ? "\n" : " ");
        else
            printf("0x%016llX,%s", (unsigned long long)dbits(mpfr_get_d(v, MPFR_RNDN)),
                   j % 3 == 2 ? "\n" : " ");
    }
    printf("\n");
    mpfr_clear(v);
}

int main(void) {
    printf("==== double\n");
    log_tables(0);
    pow_a1(0);
    printf("==== float\n");
    log_tables(1);
    pow_a1(1);
    return 0;
}

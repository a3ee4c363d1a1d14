/*
 * Host program (MPFR) that measures the quad primitives' results written
 * by bench/primitive_accuracy.c: for each case the largest and the mean
 * relative error, in units of 2^-106, of hi + lo against the exact result
 * of the operation on the same operands (MPFR at 212 bits), and how many
 * results were not normalised (|lo| above half an ulp of hi). Prints the
 * Markdown table of docs/MATH_ACCURACY.md.
 *
 *   cc tools/primitive_errors.c -lmpfr -lgmp -o primitive_errors
 *   ./primitive_errors FILE
 */
#include <mpfr.h>
#include <stdio.h>

#include "primitive_cases.h"

enum { PREC = 212 };

static void set_pair(mpfr_t x, double hi, double lo) {
    mpfr_set_d(x, hi, MPFR_RNDN);
    mpfr_add_d(x, x, lo, MPFR_RNDN);
}

/* The exact result of the case's operation, to 212 bits. */
static void exact(int op, const struct primitive_record *r, mpfr_t e, mpfr_t a, mpfr_t b) {
    set_pair(a, r->a_hi, r->a_lo);
    set_pair(b, r->b_hi, r->b_lo);
    switch (op) {
    case P_ADD: mpfr_add(e, a, b, MPFR_RNDN); break;
    case P_SUB: mpfr_sub(e, a, b, MPFR_RNDN); break;
    case P_ADDD: mpfr_add_d(e, a, r->d, MPFR_RNDN); break;
    case P_SUBD: mpfr_sub_d(e, a, r->d, MPFR_RNDN); break;
    case P_RSUBD: mpfr_d_sub(e, r->d, a, MPFR_RNDN); break;
    case P_MUL: mpfr_mul(e, a, b, MPFR_RNDN); break;
    case P_MULD: mpfr_mul_d(e, a, r->d, MPFR_RNDN); break;
    case P_MULI: mpfr_mul_si(e, a, r->n, MPFR_RNDN); break;
    case P_DIV: mpfr_div(e, a, b, MPFR_RNDN); break;
    case P_DIVD: mpfr_div_d(e, a, r->d, MPFR_RNDN); break;
    case P_RDIVD: mpfr_d_div(e, r->d, b, MPFR_RNDN); break;
    case P_POWI: mpfr_pow_si(e, a, r->n, MPFR_RNDN); break;
    case P_SQRT: mpfr_sqrt(e, a, MPFR_RNDN); break;
    default: /* the remainder for the n that came back */
        mpfr_mul_si(b, b, r->n_out, MPFR_RNDN);
        mpfr_sub(e, a, b, MPFR_RNDN);
        break;
    }
}

/* For qrem_near: whether n was the nearest integer to x / y, so that
   |r| <= |y| / 2 holds for the exact remainder. */
static int nearest(const struct primitive_record *r, mpfr_t e) {
    mpfr_t y;
    mpfr_init2(y, PREC);
    set_pair(y, r->b_hi, r->b_lo);
    mpfr_abs(y, y, MPFR_RNDN);
    mpfr_div_2ui(y, y, 1, MPFR_RNDN);
    int ok = mpfr_cmpabs(e, y) <= 0;
    mpfr_clear(y);
    return ok;
}

int main(int argc, char **argv) {
    if (argc < 2) {
        fprintf(stderr, "usage: primitive_errors FILE\n");
        return 2;
    }
    FILE *in = fopen(argv[1], "rb");
    if (!in) {
        perror(argv[1]);
        return 1;
    }
    mpfr_t a, b, e, got;
    mpfr_inits2(PREC, a, b, e, got, (mpfr_ptr)0);
    printf("| Operation and operands | Samples | Max error | Mean error | Not normalised |\n");
    printf("|---|---|---|---|---|\n");
    unsigned head[2];
    int status = 0;
    while (fread(head, sizeof head, 1, in) == 1) {
        if (head[0] >= PRIMITIVE_CASES) {
            fprintf(stderr, "unknown case %u\n", head[0]);
            return 1;
        }
        const struct primitive_case *c = &primitive_cases[head[0]];
        double worst = 0, sum = 0;
        unsigned unnormalised = 0, far = 0, measured = 0;
        for (unsigned i = 0; i < head[1]; ++i) {
            struct primitive_record r;
            if (fread(&r, sizeof r, 1, in) != 1) {
                fprintf(stderr, "%s: short file\n", argv[1]);
                return 1;
            }
            exact(c->op, &r, e, a, b);
            if (c->op == P_REM && !nearest(&r, e)) ++far;
            volatile double s = r.r_hi + r.r_lo;  /* the host rounds in SSE2 doubles */
            if (s != r.r_hi) ++unnormalised;
            if (mpfr_zero_p(e)) continue;
            set_pair(got, r.r_hi, r.r_lo);
            mpfr_sub(got, got, e, MPFR_RNDN);
            mpfr_div(got, got, e, MPFR_RNDN);
            mpfr_mul_2ui(got, got, 106, MPFR_RNDN);
            double u = mpfr_get_d(got, MPFR_RNDN);
            if (u < 0) u = -u;
            if (!(u == u)) u = 1e300;  /* a NaN where a number belongs */
            if (u > worst) worst = u;
            sum += u;
            ++measured;
        }
        printf("| %s | %u | %.3f | %.3f | %u |\n", c->text, head[1], worst,
               measured ? sum / measured : 0.0, unnormalised);
        if (far) {
            printf("| %s: quotient not the nearest integer | %u | | | |\n", c->text, far);
            status = 1;
        }
    }
    mpfr_clears(a, b, e, got, (mpfr_ptr)0);
    fclose(in);
    return status;
}

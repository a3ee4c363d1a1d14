/*
 * Runs the quad primitives on operands drawn by a fixed generator and
 * writes operands and results for tools/primitive_errors.c, which measures
 * them against MPFR. Built against liborv; `ninja -C build
 * primitive_accuracy` runs both and prints the table of
 * docs/MATH_ACCURACY.md.
 *
 *   primitive_accuracy COUNT FILE
 */
#include <math.h>
#include <quad.h>
#include <stdio.h>
#include <stdlib.h>

#include "../tools/primitive_cases.h"

typedef unsigned long long u64;

static u64 state = 0x2545F4914F6CDD1Dull;
static u64 next(void) {
    state ^= state << 13;
    state ^= state >> 7;
    return state ^= state << 17;
}

static double from_bits(u64 u) { union { u64 u; double d; } v; v.u = u; return v.d; }
static double pow2(int k) { return from_bits((u64)(k + 1023) << 52); }

/* Random sign, exponent in [lo, hi], random significand. */
static double random_double(int lo, int hi) {
    u64 r = next();
    int e = lo + (int)((r >> 53) % (unsigned)(hi - lo + 1));
    double d = (1.0 + (double)(r & 0xFFFFFFFFFFFFFull) * pow2(-52)) * pow2(e);
    return (r >> 52) & 1 ? -d : d;
}

/* A normalised pair whose trailing part lies anywhere within half an ulp. */
static quad random_quad(double hi) {
    double lo = hi * (double)((long long)next() >> 11) * pow2(-106);
    quad q = {hi + lo, 0};
    q.lo = lo - (q.hi - hi);
    return q;
}

static void draw(int op, int how, struct primitive_record *r) {
    quad a = random_quad(random_double(-60, 60)), b = random_quad(random_double(-60, 60));
    r->d = random_double(-60, 60);
    r->n = (int)(next() >> 33) - (1 << 30);
    if (how == D_CLOSE) {
        /* the leading parts agree in 20 to 50 bits */
        double k = (double)(int)(next() % 2001 - 1000) * pow2(-20 - (int)(next() % 31));
        b = random_quad((op == P_SUB ? a.hi : -a.hi) * (1 + k));
    } else if (how == D_POSITIVE) {
        a = random_quad(fabs(random_double(-60, 60)));
    } else if (how == D_UNIT) {
        a = random_quad(fabs(random_double(-1, 0)));
        r->n = (int)(next() % 81) - 40;
    } else if (how == D_PI || how == D_PI40) {
        static const quad pi = {3.141592653589793, 1.2246467991473532e-16};
        b = how == D_PI ? pi : qdivd(pi, 40);
        a = random_quad(random_double(-10, how == D_PI ? 20 : 1));
    }
    r->a_hi = a.hi, r->a_lo = a.lo, r->b_hi = b.hi, r->b_lo = b.lo;
}

static void run(int op, struct primitive_record *r) {
    quad a = {r->a_hi, r->a_lo}, b = {r->b_hi, r->b_lo}, q;
    r->n_out = 0;
    switch (op) {
    case P_ADD: q = qadd(a, b); break;
    case P_SUB: q = qsub(a, b); break;
    case P_ADDD: q = qaddd(a, r->d); break;
    case P_SUBD: q = qsubd(a, r->d); break;
    case P_RSUBD: q = qrsubd(r->d, a); break;
    case P_MUL: q = qmul(a, b); break;
    case P_MULD: q = qmuld(a, r->d); break;
    case P_MULI: q = qmuli(a, r->n); break;
    case P_DIV: q = qdiv(a, b); break;
    case P_DIVD: q = qdivd(a, r->d); break;
    case P_RDIVD: q = qrdivd(r->d, b); break;
    case P_POWI: q = qpowi(a, r->n); break;
    case P_SQRT: q = sqrtl(a); break;
    default: qrem_near(a, b, &r->n_out, &q); break;
    }
    r->r_hi = q.hi, r->r_lo = q.lo;
}

int main(int argc, char **argv) {
    if (argc < 3) {
        fputs("usage: primitive_accuracy COUNT FILE\n", stderr);
        return 2;
    }
    unsigned count = (unsigned)atoi(argv[1]);
    FILE *out = fopen(argv[2], "wb");
    if (!out) {
        perror(argv[2]);
        return 1;
    }
    for (unsigned c = 0; c < PRIMITIVE_CASES; ++c) {
        unsigned head[2] = {c, count};
        fwrite(head, sizeof head, 1, out);
        for (unsigned i = 0; i < count; ++i) {
            struct primitive_record r;
            draw(primitive_cases[c].op, primitive_cases[c].draw, &r);
            run(primitive_cases[c].op, &r);
            fwrite(&r, sizeof r, 1, out);
        }
    }
    return fclose(out) == 0 ? 0 : 1;
}

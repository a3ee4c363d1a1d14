/* The cases of the quad primitives' accuracy measurement, shared by the
   program that runs them against liborv (bench/primitive_accuracy.c) and
   the host program that measures the results with MPFR
   (tools/primitive_errors.c).

   The file between them is a sequence of cases, each a header of two
   32-bit words (case number, count) followed by count records. */
#ifndef ORV_TOOLS_PRIMITIVE_CASES_H
#define ORV_TOOLS_PRIMITIVE_CASES_H

enum { P_ADD, P_SUB, P_ADDD, P_SUBD, P_RSUBD, P_MUL, P_MULD, P_MULI, P_DIV, P_DIVD, P_RDIVD,
       P_POWI, P_SQRT, P_REM };

/* How the operands are drawn. */
enum { D_RANDOM,   /* random normalised pairs, exponents -60..60 */
       D_CLOSE,    /* b close to -a for a sum, to a for a difference */
       D_POSITIVE, /* random normalised pairs, a above 0 */
       D_UNIT,     /* a in [0.5, 2), powers -40..40 */
       D_PI,       /* y = pi, x in -2^20..2^20 */
       D_PI40 };   /* y = pi/40, x in -4..4 */

struct primitive_case { int op, draw; const char *text; };

static const struct primitive_case primitive_cases[] = {
    {P_ADD, D_RANDOM, "qadd, random pairs"},
    {P_ADD, D_CLOSE, "qadd, b close to -a"},
    {P_SUB, D_RANDOM, "qsub, random pairs"},
    {P_SUB, D_CLOSE, "qsub, b close to a"},
    {P_ADDD, D_RANDOM, "qaddd"},
    {P_SUBD, D_RANDOM, "qsubd"},
    {P_RSUBD, D_RANDOM, "qrsubd"},
    {P_MUL, D_RANDOM, "qmul"},
    {P_MULD, D_RANDOM, "qmuld"},
    {P_MULI, D_RANDOM, "qmuli"},
    {P_DIV, D_RANDOM, "qdiv"},
    {P_DIVD, D_RANDOM, "qdivd"},
    {P_RDIVD, D_RANDOM, "qrdivd"},
    {P_POWI, D_UNIT, "qpowi, a in [0.5, 2), n in -40..40"},
    {P_SQRT, D_POSITIVE, "sqrtl"},
    {P_REM, D_PI, "qrem_near, y = pi"},
    {P_REM, D_PI40, "qrem_near, y = pi/40"},
};

#define PRIMITIVE_CASES (sizeof primitive_cases / sizeof primitive_cases[0])

/* One sample: the operands as drawn, the result, and the n that qrem_near
   stores. */
struct primitive_record {
    double a_hi, a_lo, b_hi, b_lo, d;
    double r_hi, r_lo;
    int n, n_out;
};

/* The same 64 bytes in a 32-bit and in a 64-bit build. */
typedef char primitive_record_size[sizeof(struct primitive_record) == 64 ? 1 : -1];

#endif

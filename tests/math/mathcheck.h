/* Helpers of the mathematics tests: bit patterns and errno in one check,
   and tables of calls walked by one loop. */
#ifndef MATHCHECK_H
#define MATHCHECK_H

#include <errno.h>
#include <math.h>

#include "harness.h"

typedef unsigned long long u64;

static inline u64 B(double d) { union { double d; u64 u; } v = {d}; return v.u; }
static inline unsigned BF(float f) { union { float f; unsigned u; } v = {f}; return v.u; }
static inline double D(u64 u) { union { u64 u; double d; } v = {u}; return v.d; }
static inline float F(unsigned u) { union { unsigned u; float f; } v = {u}; return v.f; }
static inline int within(double v, double lo, double hi) { return v > lo && v < hi; }

/* errno before each call: a value the library never stores. */
#define OK 77
#define ANY_ERRNO (-1)    /* a row that does not look at errno */
#define ANY_NAN (~0ULL)   /* a row that takes a NaN of any payload */

#define PINF 0x7FF0000000000000ULL
#define NINF 0xFFF0000000000000ULL
#define DNAN 0x7FF8000000000000ULL
#define NZERO 0x8000000000000000ULL
#define FPINF 0x7F800000U
#define FNINF 0xFF800000U
#define FNAN 0x7FC00000U

/* A table row: a call made as the table is built, the bits of its result
   with the errno it left, and what they must be. R and RF rows want errno
   untouched; E and EF rows name it. */
typedef struct { u64 bits; int err; } outcome;
static inline outcome seen(u64 bits) { outcome o = {bits, errno}; return o; }
typedef struct {
    const char *what, *what_errno;
    int line, single;
    outcome got;
    u64 want;
    int err;
} row;
/* The text is made here, before the names in the call are expanded. */
#define ROW_(text, single, bits, w, e) \
    {text, text " errno", __LINE__, single, (errno = OK, seen(bits)), w, e}
#define E(call, w, e) ROW_(#call, 0, B(call), w, e)
#define R(call, w) ROW_(#call, 0, B(call), w, OK)
#define EF(call, w, e) ROW_(#call, 1, BF(call), w, e)
#define RF(call, w) ROW_(#call, 1, BF(call), w, OK)

static inline void check_rows(const row *r, unsigned n, const char *file) {
    for (; n--; ++r) {
        if (r->want != ANY_NAN)
            t_check_hex(r->got.bits, r->want, r->what, file, r->line);
        else if (r->single)
            t_check((r->got.bits & 0x7FFFFFFF) > FPINF, r->what, file, r->line);
        else
            t_check((r->got.bits & ~NZERO) > PINF, r->what, file, r->line);
        if (r->err != ANY_ERRNO) t_check_int(r->got.err, r->err, r->what_errno, file, r->line);
    }
}
#define CHECK_ROWS(rows) check_rows(rows, sizeof rows / sizeof rows[0], __FILE__)

#endif

/* Helpers of the mathematics tests: bit patterns and errno in one check. */
#ifndef MATHCHECK_H
#define MATHCHECK_H

#include <errno.h>
#include <math.h>

#include "harness.h"

typedef unsigned long long u64;

static inline u64 B(double d) {
    union { double d; u64 u; } v;
    v.d = d;
    return v.u;
}
static inline unsigned BF(float f) {
    union { float f; unsigned u; } v;
    v.f = f;
    return v.u;
}
static inline double D(u64 u) {
    union { double d; u64 u; } v;
    v.u = u;
    return v.d;
}
static inline float F(unsigned u) {
    union { float f; unsigned u; } v;
    v.u = u;
    return v.f;
}

/* errno before each call: a value the library never stores. */
#define ERRNO_UNTOUCHED 77

#define PINF 0x7FF0000000000000ULL
#define NINF 0xFFF0000000000000ULL
#define DNAN 0x7FF8000000000000ULL
#define NZERO 0x8000000000000000ULL
#define FPINF 0x7F800000U
#define FNINF 0xFF800000U
#define FNAN 0x7FC00000U

/* The bits of a double result and the errno it leaves. */
#define CHECK_D(expr, want_bits, want_errno)                  \
    do {                                                     \
        errno = ERRNO_UNTOUCHED;                             \
        u64 got_ = B(expr);                                  \
        int err_ = errno;                                    \
        CHECK_HEX(got_, (u64)(want_bits));                   \
        t_check_int(err_, (want_errno), #expr " errno", __FILE__, __LINE__); \
    } while (0)

#define CHECK_F(expr, want_bits, want_errno)                  \
    do {                                                     \
        errno = ERRNO_UNTOUCHED;                             \
        unsigned got_ = BF(expr);                            \
        int err_ = errno;                                    \
        CHECK_HEX(got_, (unsigned)(want_bits));              \
        t_check_int(err_, (want_errno), #expr " errno", __FILE__, __LINE__); \
    } while (0)

#define OK ERRNO_UNTOUCHED

#endif

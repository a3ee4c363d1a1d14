/* The 16-byte long double of this library: an unevaluated sum of two
   doubles, hi + lo, with hi the value rounded to double. It travels by
   value. The primitives below live in the companion library
   libtessardll.so; everything else on quads is built on them. */
#ifndef _ORV_QUAD_H
#define _ORV_QUAD_H

#include "_orv_defs.h"

typedef struct quad {
    double hi; /* leading part */
    double lo; /* trailing part: the value is hi + lo */
} quad;

#ifdef __cplusplus
static_assert(sizeof(quad) == 16, "quad is two doubles");
static_assert(__builtin_offsetof(quad, hi) == 0, "hi comes first");
static_assert(__builtin_offsetof(quad, lo) == 8, "lo follows hi");
#else
_Static_assert(sizeof(quad) == 16, "quad is two doubles");
_Static_assert(__builtin_offsetof(quad, hi) == 0, "hi comes first");
_Static_assert(__builtin_offsetof(quad, lo) == 8, "lo follows hi");
#endif

_ORV_BEGIN

quad qadd(quad a, quad b);
quad qaddd(quad a, double d);
quad qsub(quad a, quad b);
quad qsubd(quad a, double d);
quad qrsubd(double d, quad a);
quad qmul(quad a, quad b);
quad qmuld(quad a, double d);
quad qmuli(quad a, int n);
quad qdiv(quad a, quad b);
quad qdivd(quad a, double d);
quad qrdivd(double d, quad a);
quad qneg(quad a);
quad qpowi(quad a, int n);
quad qpowll(quad a, long long n);
/* *n = the integer nearest to x / y, *r = x - n * y, so |*r| <= |y| / 2. */
void qrem_near(quad x, quad y, int *n, quad *r);

_ORV_END

#endif

/* Complex numbers whose parts are quads, and the entry points that
   compiled code calls for their arithmetic and elementary functions. A
   qcomplex travels by value. */
#ifndef _ORV_QCOMPLEX_H
#define _ORV_QCOMPLEX_H

#include "quad.h"

typedef struct qcomplex {
    quad re; /* real part */
    quad im; /* imaginary part */
} qcomplex;

#ifdef __cplusplus
static_assert(sizeof(qcomplex) == 32, "qcomplex is two quads");
static_assert(__builtin_offsetof(qcomplex, re) == 0, "re comes first");
static_assert(__builtin_offsetof(qcomplex, im) == 16, "im follows re");
#else
_Static_assert(sizeof(qcomplex) == 32, "qcomplex is two quads");
_Static_assert(__builtin_offsetof(qcomplex, re) == 0, "re comes first");
_Static_assert(__builtin_offsetof(qcomplex, im) == 16, "im follows re");
#endif

_ORV_BEGIN

qcomplex _orvane_cqmul(qcomplex a, qcomplex b);
qcomplex _orvane_cqdiv(qcomplex a, qcomplex b);
qcomplex _orvane_cpowl(qcomplex x, qcomplex y);
qcomplex _orvane_cqtoi(qcomplex x, int n);
qcomplex CSQRTL(qcomplex z);
qcomplex CEXPL(qcomplex z);
qcomplex CLOGL(qcomplex z);
qcomplex CSINL(qcomplex z);
qcomplex CCOSL(qcomplex z);

_ORV_END

#endif

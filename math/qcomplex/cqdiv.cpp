#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

// Smith's method: the ratio of the divisor's parts, smaller over larger,
// so that no square of a part is formed.
extern "C" ORV_EXPORT qcomplex _orvane_cqdiv(qcomplex a, qcomplex b) {
    quad P = fabsl(b.re), Q = fabsl(b.im);
    if (eq(P.hi, 0.0) && eq(Q.hi, 0.0)) return complex_nan();
    if (gt(qsub(P, Q).hi, 0.0)) {
        quad r = qdiv(b.im, b.re);
        quad d = qadd(b.re, qmul(b.im, r));
        return cx(qdiv(qadd(a.re, qmul(a.im, r)), d), qdiv(qsub(a.im, qmul(a.re, r)), d));
    }
    quad r = qdiv(b.re, b.im);
    quad d = qadd(b.im, qmul(b.re, r));
    return cx(qdiv(qadd(qmul(a.re, r), a.im), d), qdiv(qsub(qmul(a.im, r), a.re), d));
}

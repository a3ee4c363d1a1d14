#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

// Four products, no scaling.
extern "C" ORV_EXPORT qcomplex _orvane_cqmul(qcomplex a, qcomplex b) {
    return cx(qsub(qmul(a.re, b.re), qmul(a.im, b.im)), qadd(qmul(a.re, b.im), qmul(b.re, a.im)));
}

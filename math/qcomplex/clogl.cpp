#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

// ln|z| + i arg z; the squares in |z| are not scaled.
extern "C" ORV_EXPORT qcomplex CLOGL(qcomplex z) {
    return cx(logl(sqrtl(norm(z))), atan2l(z.im, z.re));
}

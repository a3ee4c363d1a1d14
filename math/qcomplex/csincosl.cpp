#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT qcomplex CSINL(qcomplex z) {
    return cx(qmul(sinl(z.re), coshl(z.im)), qmul(cosl(z.re), sinhl(z.im)));
}

extern "C" ORV_EXPORT qcomplex CCOSL(qcomplex z) {
    return cx(qmul(cosl(z.re), coshl(z.im)), qmul(qneg(sinl(z.re)), sinhl(z.im)));
}

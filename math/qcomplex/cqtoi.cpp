#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

#include <cstdint>

using namespace orv::qk;

namespace {

qcomplex times(qcomplex a, qcomplex b) {
    return cx(qsub(qmul(a.re, b.re), qmul(a.im, b.im)), qadd(qmul(a.im, b.re), qmul(a.re, b.im)));
}

}  // namespace

// Binary powering; a negative power inverts the base first. A zero base
// gives zero for every power but 0, negative ones too.
extern "C" ORV_EXPORT qcomplex _orvane_cqtoi(qcomplex x, int n) {
    const qcomplex one = cx(make(1.0, 0.0), make(0.0, 0.0));
    if (is_zero(x)) return n == 0 ? one : complex_zero();
    auto m = static_cast<std::uint32_t>(n);
    if (n < 0) m = 0u - m;  // INT_MIN keeps its magnitude
    qcomplex z = x;
    if (n < 0) {
        quad d = norm(x);
        z = cx(qdiv(x.re, d), qdiv(qneg(x.im), d));
    }
    qcomplex r = one;
    while (m != 0) {
        if (m & 1) r = times(r, z);
        z = times(z, z);
        m >>= 1;
    }
    return r;
}

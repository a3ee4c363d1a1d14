// What the complex quad functions share.
#pragma once

#include "include/qcomplex.h"
#include "math/quad/qkernel.h"

namespace orv::qk {

inline qcomplex cx(quad re, quad im) {
    qcomplex z;
    z.re = re;
    z.im = im;
    return z;
}

// Both parts the quad NaN.
inline qcomplex complex_nan() { return cx(quad_nan(), quad_nan()); }

inline qcomplex complex_zero() { return cx(make(0.0, 0.0), make(0.0, 0.0)); }

// A part counts as zero by its hi alone; a NaN counts as zero too.
inline bool is_zero(qcomplex z) { return eq(z.re.hi, 0.0) && eq(z.im.hi, 0.0); }

// re^2 + im^2, unscaled.
inline quad norm(qcomplex z) { return qadd(qmul(z.re, z.re), qmul(z.im, z.im)); }

// E (cos B + i sin B), the last step of the exponential and the power.
inline qcomplex polar(quad E, quad B) { return cx(qmul(E, cosl(B)), qmul(E, sinl(B))); }

}  // namespace orv::qk

// A linear guess on the reduced argument in [0.5, 1), two Newton steps, and
// the exponent halved apart; an odd exponent costs one factor of sqrt 1/2.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float sqrtf(float x) {
    const u32 bits = fbits(x);
    if (bits - 1 >= 0x7F800000 - 1) {  // zeros, infinities, NaNs, negatives
        if (eq(x, 0.0)) return x;      // NaN too
        if (!le(0.0, x)) return static_cast<float>(domain_error(kFloatNan));
        return kFloatInf;  // e = 129
    }
    Trips trips;
    // f is x with the exponent field 0x7E; a denormal keeps e = -126 and
    // reads its fraction as if the hidden bit were set.
    const int e = static_cast<int>(bits >> 23) - 126;
    trips.n[0] = static_cast<i32>((bits & 0x7FFFFF) | 0x800000);
    const double f = fild(trips.n[0]) * 0x1p-24;
    double y = static_cast<double>(0.59016f) * f + static_cast<double>(0.41731f);
    y = 0.5 * (y + f / y);
    const double r = to_float(0.5 * (y + f / y), trips.f[0]);
    // An odd e takes the factor and becomes even; the product by 1 of an
    // even one changes nothing. Adding e/2 to the exponent field of the
    // stored float is scaling by 2^(e/2), which commutes with the rounding
    // since every result here is a normal float; the two factors make one
    // exact product, ready before the Newton steps are.
    static constexpr double kOdd[2] = {1.0, 0.7071067811865476};
    const int odd = e & 1;
    const double factor = scale2(kOdd[odd], (e + odd) / 2);
    return to_float(r * factor, trips.f[1]);
}

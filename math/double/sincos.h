// Sine and cosine: reduction by multiples of pi with a split constant, then
// an odd polynomial; the cosine is the sine a quarter turn on. Inline, so
// that sin and cos get their own copies with the flag known.
#pragma once

#include "math/fp.h"

namespace orv::m {

inline double sincos_kernel(double x, int flag) {
    Trips trips;
    const double ax = absd(x);
    double y = ax;
    unsigned negate = 0;
    if (flag) y = y + 1.5707963267948966;
    else negate = gt(0.0, x);
    if (!ge(298156835.16176, y)) return 0.0;  // no significance left; also inf, NaN
    double xn = trunc_small_pos(y * 0.3183098861837907 + 0.5);  // below 10^8 here
    const i32 n = integral_to_i32(xn, trips.n[0]);
    negate ^= n & 1;
    if (flag) xn = xn - 0.5;
    // 3.1416015625 = 3217/1024 has 12 significant bits.
    double f = (ax - xn * 3.1416015625) - xn * -8.908910206761538e-06;
    if (!lt(absd(f), kEps)) {
        const double g = f * f;
        const double r =
            ((((((2.7204790957888847e-15 * g - 7.642917806891047e-13) * g +
                 1.605893649037159e-10) * g - 2.5052106798274583e-08) * g +
               2.7557319210152756e-06) * g - 0.0001984126984120184) * g +
             0.008333333333333165) * g - 0.16666666666666666;
        f = f + f * g * r;
    }
    return f * kSign[negate];
}

}  // namespace orv::m

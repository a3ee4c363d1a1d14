// The exponential: reduction by a split ln 2 and a rational kernel for 2^g
// on [0.5, 1). Inline, so that sinh, cosh and tanh keep their value in the
// registers.
#pragma once

#include "math/fp.h"

namespace orv::m {

inline double exp_kernel(double x) {
    if (!ge(709.089565712824, x)) return range_error(kDoubleInf);  // also NaN
    if (gt(-708.396418532264, x)) return 0.0;
    Trips trips;
    const double t = x * 1.4426950408889634;
    // Nearest, ties away from zero; |t| stays below 1100 here.
    const double xn = trunc_small(t + kHalf[ge(t, 0.0)]);
    const i32 n = integral_to_i32(xn, trips.n[0]);
    // 0.693359375 has 9 significant bits, so xn times it is exact.
    const double g = (x - xn * 0.693359375) - xn * -0.00021219444005469057;
    const double z = g * g;
    const double gp = g * ((1.6520330026827912e-05 * z + 0.006943600015117929) * z + 0.25);
    const double q = (0.0004958628849054413 * z + 0.05555386669690012) * z + 0.5;
    const double r = 0.5 + gp / (q - gp);
    return scale2(r, n + 1);  // r has its exponent field raised by n + 1
}

}  // namespace orv::m

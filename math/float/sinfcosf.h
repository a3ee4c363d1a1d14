// As __sincos, with a degree-3 kernel and a reduction good to 8192.
// Inline, so that sinf and cosf get their own copies with the flag known.
#pragma once

#include "math/fp.h"

namespace orv::m {

inline float sinfcosf_kernel(float xf, int flag) {
    Trips trips;
    const double ax = absd(xf);
    double y = ax;
    unsigned negate = 0;
    if (flag) y = to_float(y + static_cast<double>(1.5707964f), trips.f[0]);
    else negate = gt(0.0, xf);
    if (!ge(8192.0, y)) return 0.0f;
    double xn = trunc_small_pos(y * static_cast<double>(0.31830987f) + 0.5);  // below 2700 here
    const i32 n = integral_to_i32(xn, trips.n[0]);
    negate ^= n & 1;
    if (flag) xn = xn - 0.5;  // a float already: xn is below 2^12
    // 3.140625 is below pi, so the second part is positive.
    double f = (ax - xn * 3.140625) - xn * static_cast<double>(0.00096765364f);
    if (!lt(absd(f), kEpsF)) {
        const double g = f * f;
        const double r = ((static_cast<double>(2.6019031e-06f) * g -
                           static_cast<double>(0.00019807418f)) * g +
                          static_cast<double>(0.0083330255f)) * g -
                         static_cast<double>(0.16666657f);
        f = f + f * (g * r);
    }
    return to_float(f * kSign[negate], trips.f[1]);
}

}  // namespace orv::m

// Arcsine and arccosine share one rational kernel; above 0.5 the argument
// is replaced by the root of (1 - |x|)/2, and eight cases finish the sum.
// Inline, so that asin and acos get their own copies with the flag known.
#pragma once

#include "math/fp.h"

namespace orv::m {

inline double asinacos_kernel(double x, int flag) {
    constexpr double p = 0.7853981633974483;  // pi/4
    constexpr double h = 1.5707963267948966;  // pi/2
    int i = flag ? 1 : 0;
    double y = absd(x);
    if (gt(0.0, x)) i += 2;
    if (!ge(kEps, y)) {
        double g;
        if (gt(y, 0.5)) {
            if (!ge(1.0, y)) return domain_error(kDoubleNan);
            i += 4;
            g = ((0.5 - y) + 0.5) * 0.5;
            y = 2.0 * fsqrt(g);
        } else {
            g = y * y;
        }
        const double pg = ((((-0.6967457344735065 * g + 10.152522233806463) * g -
                             39.68886299750488) * g + 57.20822787789173) * g -
                           27.368494524164255) * g;
        const double qg = ((((g - 23.823859153670238) * g + 150.95270841030606) * g -
                            381.8630336175015) * g + 417.14430248260413) * g -
                          164.2109671449856;
        y = y + y * pg / qg;
    }
    switch (i) {
    case 0: return y;
    case 1: return (p - y) + p;
    case 2: return -y;
    case 3: return (p + y) + p;
    case 4: return (p - y) + p;
    case 5: return y;
    case 6: return (y - p) - p;
    default: return (h - y) + h;
    }
}

}  // namespace orv::m

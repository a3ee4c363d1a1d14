#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float atanf(float xf) {
    double x = xf;
    const bool negative = gt(0.0, x);
    if (negative) x = -x;
    int n = 0;
    if (gt(x, 1.0)) {
        x = 1.0 / x;
        n = 2;
    }
    if (!ge(static_cast<double>(0.2679492f), x)) {
        ++n;
        x = (((static_cast<double>(0.73205084f) * x - 0.5) - 0.5) + x) /
            (x + static_cast<double>(1.7320508f));
    }
    if (gt(absd(x), kEpsF)) {
        const double g = x * x;
        const double pg = (static_cast<double>(-0.050909583f) * g - static_cast<double>(0.47083253f)) * g;
        const double qg = g + static_cast<double>(1.4125007f);
        x = x + x * pg / qg;
    }
    if (n > 1) x = -x;
    if (n == 1) x = x + static_cast<double>(0.5235988f);
    else if (n == 2) x = x + static_cast<double>(1.5707964f);
    else if (n == 3) x = x + static_cast<double>(1.0471976f);
    return to_float(negative ? -x : x);
}

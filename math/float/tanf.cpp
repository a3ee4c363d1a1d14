#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float tanf(float xf) {
    const double x = xf;
    if (!ge(from_fbits(0x46490FDB), absd(x))) return 0.0f;
    i32 n = to_i32(absd(x) * static_cast<double>(0.63661975f) + 0.5);
    if (gt(0.0, x)) n = -n;
    const double xn = n;
    const double f = (x - xn * 1.5703125) - xn * static_cast<double>(0.0004838268f);
    double num = to_float(f), den = 1.0;
    if (!lt(absd(f), kEpsF)) {
        const double g = f * f;
        num = to_float(f + g * static_cast<double>(-0.09580177f) * f);
        den = to_float((static_cast<double>(0.009716858f) * g - static_cast<double>(0.42913577f)) * g + 1.0);
    }
    const double parts[3] = {num, den, -num};
    return to_float(parts[n & 1] / parts[1 + (n & 1)]);
}

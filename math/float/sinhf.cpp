#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float sinhf(float xf) {
    const double x = xf;
    const bool negative = gt(0.0, x);
    const double y = absd(x);
    if (!ge(1.0, y)) {
        const double z = expf(static_cast<float>(y));
        const double r = (z - 1.0 / z) * 0.5;
        return to_float(negative ? -r : r);
    }
    if (gt(y, kEpsF)) {
        const double g = x * x;
        const double pg = (static_cast<double>(-0.1903334f) * g - static_cast<double>(7.137932f)) * g;
        const double qg = g - static_cast<double>(42.82771f);
        return to_float(x + x * pg / qg);
    }
    return xf;
}

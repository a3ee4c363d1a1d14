#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float atan2f(float yf, float xf) {
    const double y = yf, x = xf;
    if (eq(x, 0.0)) {
        if (eq(y, 0.0)) return static_cast<float>(domain_error(0.0));
        return lt(y, 0.0) ? -1.5707964f : 1.5707964f;
    }
    double r = round53(fpatan(absd(y / x), 1.0));
    if (lt(x, 0.0)) r = static_cast<double>(3.1415927f) - r;
    if (fbits(yf) >> 31) r = -r;
    return to_float(r);
}

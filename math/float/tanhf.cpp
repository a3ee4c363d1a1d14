#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float tanhf(float xf) {
    const double y = absd(xf);
    double r;
    if (!ge(from_fbits(0x41102CB8), y)) {
        r = 1.0;
    } else if (gt(y, static_cast<double>(0.54930615f))) {
        r = (0.5 - 1.0 / (static_cast<double>(expf(static_cast<float>(y + y))) + 1.0)) * 2.0;
    } else if (!ge(kEpsF, y)) {
        const double g = y * y;
        const double n = static_cast<double>(-0.0038310108f) * g - static_cast<double>(0.8237728f);
        const double d = g + static_cast<double>(2.4713197f);
        r = y + y * g * n / d;
    } else {
        r = y;
    }
    return to_float(lt(xf, 0.0) ? -r : r);
}

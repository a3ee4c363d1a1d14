// As __asinacos, with a shorter rational kernel.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float __asinfacosf(float xf, int flag) {
    const double p = 0.7853982f;
    const double h = 1.5707964f;
    const double x = xf;
    int i = flag ? 1 : 0;
    double y = absd(x);
    if (gt(0.0, x)) i += 2;
    if (!ge(kEpsF, y)) {
        double g;
        if (gt(y, 0.5)) {
            if (!ge(1.0, y)) return static_cast<float>(domain_error(kFloatNan));
            i += 4;
            g = ((0.5 - y) + 0.5) * 0.5;
            y = 2.0 * fsqrt(g);
        } else {
            g = y * y;
        }
        const double pg = (static_cast<double>(-0.50440055f) * g + static_cast<double>(0.9339358f)) * g;
        const double qg = (g - static_cast<double>(5.548467f)) * g + static_cast<double>(5.60363f);
        y = y + y * pg / qg;
    }
    double r;
    switch (i) {
    case 0: r = y; break;
    case 1: r = (p - y) + p; break;
    case 2: r = -y; break;
    case 3: r = (p + y) + p; break;
    case 4: r = (p - y) + p; break;
    case 5: r = y; break;
    case 6: r = (y - p) - p; break;
    default: r = (h - y) + h; break;
    }
    return to_float(r);
}

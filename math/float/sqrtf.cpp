// A linear guess on the reduced argument in [0.5, 1), two Newton steps, and
// the exponent halved apart; an odd exponent costs one factor of sqrt 1/2.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float sqrtf(float x) {
    if (eq(x, 0.0)) return x;  // NaN too
    if (!le(0.0, x)) return static_cast<float>(domain_error(kFloatNan));
    int e = fexp_field(x) - 126;
    if (e >= 129) return kFloatInf;
    const double f = with_fexp_field(x, 0x7E);
    double y = static_cast<double>(0.59016f) * f + static_cast<double>(0.41731f);
    y = 0.5 * (y + f / y);
    float r = to_float(0.5 * (y + f / y));
    if (e & 1) {
        r = to_float(r * 0.7071067811865476);
        ++e;
    }
    return add_fexp(r, e / 2);
}

// As atan2, with float values of pi and pi/2.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float atan2f(float yf, float xf) {
    const double y = yf, x = xf;
    if (eq(x, 0.0)) {
        if (eq(y, 0.0)) return static_cast<float>(domain_error(0.0));
        return lt(y, 0.0) ? -1.5707964f : 1.5707964f;
    }
    // The arctangent comes with a 64-bit significand; its product by 1 or
    // -1 below is what rounds it to double.
    const double r = fpatan(absd(y / x), 1.0);
    // pi - r for x < 0, as 0 + r or pi + r times -1; then -r when the sign
    // bit of y is set. Without a branch.
    static constexpr double base[2] = {0.0, static_cast<double>(3.1415927f)};
    const unsigned left = lt(x, 0.0);
    return to_float(negate_if(base[left] + r * kSign[left], fbits(yf) >> 31));
}

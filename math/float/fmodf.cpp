#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float fmodf(float x, float y) {
    if (eq(y, 0.0)) return static_cast<float>(domain_error(kFloatNan));
    const double x_ = x, y_ = y;
    return to_float(x_ - aint(to_float(x_ / y_)) * y_);
}

// One division and one product: no exact remainder loop.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double fmod(double x, double y) {
    if (eq(y, 0.0)) return domain_error(kDoubleNan);
    return x - dint(x / y) * y;
}

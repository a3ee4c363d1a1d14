#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float coshf(float x) {
    const double z = expf(absd(x));
    return to_float((z + 1.0 / z) * 0.5);
}

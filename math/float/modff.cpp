#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float modff(float x, float *ip) {
    const float t = aint(x);
    *ip = t;
    return to_float(static_cast<double>(x) - t);
}

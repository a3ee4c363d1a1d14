// Half away from zero whatever the rounding mode; x + 0.5 is rounded
// before the truncation.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double rint(double x) {
    if (ge(x, 0.0)) return dint(x + 0.5);
    return -dint(absd(x) + 0.5);
}

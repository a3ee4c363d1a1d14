#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad fabsl(quad x) {
    if (gt(0.0, x.hi)) return make(-x.hi, -x.lo);
    return x;
}

#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad coshl(quad x) {
    if (eq(x.hi, 0.0)) return make(1.0, 0.0);  // a NaN too
    quad E = expl(x);
    return qmuld(qadd(E, qrdivd(1.0, E)), 0.5);
}

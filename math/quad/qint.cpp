#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad qint(quad x) {
    return ge(x.hi, 0.0) ? floorl(x) : ceill(x);
}

#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad ceill(quad x) {
    return round_pair<ceil_d>(x);
}

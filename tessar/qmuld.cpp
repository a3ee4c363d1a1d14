#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qmuld(quad a, double d) {
    return dd::mul(a, dd::make(d, 0.0));
}

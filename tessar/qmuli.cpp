#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qmuli(quad a, int n) {
    // Every int is exact as a double.
    return dd::mul(a, dd::make(static_cast<double>(n), 0.0));
}

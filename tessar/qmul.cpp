#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qmul(quad a, quad b) {
    return dd::mul(a, b);
}

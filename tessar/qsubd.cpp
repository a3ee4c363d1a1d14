#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qsubd(quad a, double d) {
    return dd::add_d(a, -d);
}

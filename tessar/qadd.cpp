#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qadd(quad a, quad b) {
    return dd::add(a, b);
}

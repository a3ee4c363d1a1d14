#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qrdivd(double d, quad a) {
    return dd::div(dd::make(d, 0.0), a);
}

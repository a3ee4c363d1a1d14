#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qrsubd(double d, quad a) {
    return dd::add_d(dd::neg(a), d);
}

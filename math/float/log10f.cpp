#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float log10f(float x) {
    return to_float(static_cast<double>(logf(x)) * from_fbits(0x3EDE5BD9));
}

#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT int isnan(double x) {
    return ((hi(x) >> 20) & 0x7FF) == 0x7FF && ((hi(x) & 0xFFFFF) | lo(x)) != 0;
}

#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float cosf(float x) { return __sinfcosf_c(x, 1); }

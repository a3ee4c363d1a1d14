#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float sinf(float x) { return __sinfcosf_c(x, 0); }

#include "math/float/sinfcosf.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float cosf(float x) { return sinfcosf_kernel(x, 1); }

#include "math/float/sinfcosf.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT float __sinfcosf_c(float x, int flag) { return sinfcosf_kernel(x, flag); }

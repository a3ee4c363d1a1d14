#include "include/math.h"
#include "math/double/sincos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double __sincos(double x, int flag) { return sincos_kernel(x, flag); }

#include "include/math.h"
#include "math/double/sincos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double sin(double x) { return sincos_kernel(x, 0); }

#include "math/double/asinacos.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double __asinacos(double x, int flag) { return asinacos_kernel(x, flag); }

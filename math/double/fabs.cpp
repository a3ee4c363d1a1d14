#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double fabs(double x) { return from_bits(bits(x) & ~(u64(1) << 63)); }

#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double log10(double x) {
    return log(x) * from_bits(0x3FDBCB7B1526E50E);
}

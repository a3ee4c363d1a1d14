// Denormals are not normalised: their zero exponent field gives -1022.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double frexp(double x, int *e) {
    if (eq(x, 0.0)) {
        *e = 0;
        return 0.0;
    }
    *e = exp_field(x) - 1022;
    return with_exp_field(x, 0x3FE);
}

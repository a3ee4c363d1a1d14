// Four Newton steps from a guess that halves the exponent; the halvings
// are folded into the steps two at a time.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double sqrt(double x) {
    if (eq(x, 0.0)) return x;  // -0 stays -0, a NaN comes back
    if (!le(0.0, x)) return domain_error(kDoubleNan);
    const double a = from_words((hi(x) >> 1) + 0x1FF80000u, 0);
    const double b = a + x / a;
    const double c = 0.25 * b + x / b;
    const double d = c + x / c;
    return 0.25 * d + x / d;
}

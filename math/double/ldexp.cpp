// Works on the exponent field only: no denormal result is ever made.
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double ldexp(double x, int n) {
    const int e = exp_field(x);
    if (e == 0) return x;
    if (e == 0x7FF) return kDoubleNan;
    const long long s = static_cast<long long>(e) + n;
    if (s <= 0) return 0.0;
    if (s >= 0x7FF) return range_error(from_bits((bits(x) & (u64(1) << 63)) | bits(kDoubleInf)));
    return with_exp_field(x, static_cast<u32>(s));
}

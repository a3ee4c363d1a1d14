#include "arith/orvane.h"
#include "math/quad/qkernel.h"
#include "runtime/export.h"

#include <cstdint>

using namespace orv::qk;

namespace {

enum class Integral { no, yes, huge };

// Whether a double of unbiased exponent E is an integer, and whether it is
// one that the power primitives can take: below 2^31 by a 32-bit
// truncation, below 2^63 by the 64-bit conversions, and beyond that an
// even number too big for either.
Integral classify(double d, int E, long long *k) {
    if (E > 63) return Integral::huge;
    if (E < 31) {
        int n = to_int(d);
        *k = n;
        return eq(static_cast<double>(n), d) ? Integral::yes : Integral::no;
    }
    *k = _orvane_cvtdll(d);
    // A saturated conversion is 2^63 - 1, which no double equals; every
    // other result is a double itself, so the comparison back is exact.
    if (*k == INT64_MAX) return Integral::no;
    return eq(_orvane_cvtlld(*k), d) ? Integral::yes : Integral::no;
}

}  // namespace

// Integral powers go to the power primitives; anything else is
// e^(y ln x) of |x|, where a negative x is allowed only when y is an
// integer too large for them (and the result then has its sign dropped).
extern "C" ORV_EXPORT quad powl(quad x, quad y) {
    if (eq(y.hi, 0.0)) return make(1.0, 0.0);  // whatever y.lo is
    if (eq(x.hi, 1.0) && eq(x.lo, 0.0)) return x;
    long long k = 0;
    if (eq(y.lo, 0.0)) {
        int E = exponent_field(y.hi) - 1023;
        switch (classify(y.hi, E, &k)) {
        case Integral::yes:
            if (E < 31) return qpowi(x, static_cast<int>(k));
            return qpowll(x, k);
        case Integral::huge:
            if (lt(x.hi, 0.0)) x = negate(x);
            break;
        case Integral::no:
            break;
        }
    } else {
        // With a low part, an integral low part is enough to drop the sign
        // of x; the parity of y is not looked at.
        int E = exponent_field(y.lo) - 1023;
        if (E > 52 || classify(y.lo, E, &k) == Integral::yes) {
            if (lt(x.hi, 0.0)) x = negate(x);
        }
    }
    if (gt(x.hi, 0.0)) return expl(qmul(y, logl(x)));
    if (lt(x.hi, 0.0)) return quad_nan();  // a NaN counts as below 0
    return ge(y.hi, 0.0) ? make(0.0, 0.0) : make(kInf, 0.0);
}

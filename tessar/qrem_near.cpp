#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

#include <cstdint>

using namespace orv;

namespace {

// Rounds to an integral double by the current rounding mode (to nearest).
double round_int(double x) {
    __asm__("frndint" : "+t"(x));
    return x;
}

// The integral quad nearest to q: the low part decides when the high part
// is integral already, and breaks the tie when it stands at a half.
quad nearest(quad q) {
    double h = round_int(q.hi);
    if (h == q.hi) return dd::quick_two_sum(h, round_int(q.lo));
    double off = h - q.hi;
    if (off == 0.5 && q.lo < 0.0) h -= 1.0;
    if (off == -0.5 && q.lo > 0.0) h += 1.0;
    return dd::make(h, 0.0);
}

// x - t * y with the product kept exact for an integral double t, so that
// the remainder keeps full accuracy even when it is tiny beside x.
quad remainder(quad x, quad y, double t) {
    quad p1 = dd::two_prod(t, y.hi);
    quad p2 = dd::two_prod(t, y.lo);
    quad r = dd::two_sum(x.hi, -p1.hi);
    r = dd::add_d(r, x.lo);
    r = dd::add_d(r, -p2.hi);
    r = dd::add_d(r, -p1.lo);
    return dd::add_d(r, -p2.lo);
}

// An integral double modulo 2^32: exact, since d - 2^32 k is exact for an
// integral d below 2^85 and every larger one is a multiple of 2^32.
std::uint32_t wrap(double d) {
    constexpr double two32 = 4294967296.0;
    double k = d * (1.0 / two32);
    double f = round_int(k);
    if (f > k) f -= 1.0;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(d - f * two32));
}

} // namespace

// An n that does not fit an int is stored modulo 2^32, which keeps its parity.
extern "C" ORV_EXPORT void qrem_near(quad x, quad y, int *n, quad *r) {
    quad t = nearest(dd::div(x, y));
    constexpr double exact_limit = 9007199254740992.0;  // 2^53
    quad rem;
    if (t.lo == 0.0 && t.hi < exact_limit && t.hi > -exact_limit) {
        rem = remainder(x, y, t.hi);
        // The quotient was rounded before the remainder was formed: one
        // step of correction puts a remainder beyond |y|/2 back in range.
        quad ay = y.hi < 0.0 ? dd::neg(y) : y;
        quad ar = rem.hi < 0.0 ? dd::neg(rem) : rem;
        quad excess = dd::add(dd::add(ar, ar), dd::neg(ay));
        if (excess.hi > 0.0) {
            double step = (rem.hi < 0.0) == (y.hi < 0.0) ? 1.0 : -1.0;
            t.hi += step;
            rem = step > 0.0 ? dd::add(rem, dd::neg(y)) : dd::add(rem, y);
        }
    } else {
        rem = dd::add(x, dd::neg(dd::mul(t, y)));
    }
    *n = static_cast<int>(wrap(t.hi) + wrap(t.lo));
    *r = rem;
}

// Four Newton steps from a guess that halves the exponent; the halvings
// are folded into the steps two at a time.
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

double ladder(double x, double a) {
    const double b = a + x / a;
    const double c = 0.25 * b + x / b;
    const double d = c + x / c;
    return 0.25 * d + x / d;
}

}  // namespace

extern "C" ORV_EXPORT double sqrt_words(arg64 w) __asm__("sqrt");

double sqrt_words(arg64 w) {
    Trips trips;
    const u32 e = w.hi >> 20;  // the sign too
    if (e - 1 < 0x7FE) {
        // A positive normal x = 2^2k x', x' in [1, 4): the ladder runs on x'
        // and the guess over 2^k, and the result is scaled back. Exact
        // powers of two commute with every rounding of the ladder.
        const u32 odd = (e - 1023) & 1;
        const int k = (static_cast<int>(e) - 1023 - static_cast<int>(odd)) >> 1;
        static constexpr double kSignificand[2] = {0x1p-52, 0x1p-51};
        const double x = significand(w, trips.n[0]) * kSignificand[odd];
        // The guess's high word is (high word of x) / 2 + 0x1FF80000: over
        // 2^k that is 1 or 1.5 by the parity, plus the fraction halved.
        const i32 guess = static_cast<i32>(((w.hi & 0xFFFFF) >> 1) + (odd ? 0x180000u : 0x100000u));
        return scale2(ladder(x, to_double(guess, trips.n[1]) * 0x1p-20), k);
    }
    const double x = stored_value(w.hi, w.lo);
    if (eq(x, 0.0)) return x;  // -0 stays -0, a NaN comes back
    if (!le(0.0, x)) return domain_error(kDoubleNan);
    // Denormals and +infinity: the guess from the bits as they stand.
    return ladder(x, from_words((w.hi >> 1) + 0x1FF80000u, 0));
}

#include "math/qcomplex/qcx.h"
#include "runtime/export.h"

#include <cstdint>

using namespace orv::qk;

namespace {

// The integer powers that the double pow takes by repeated squaring: a y
// whose low word is 0 and that is a power of two below 2^31, or an integer
// below 2^21.
bool small_integer(double y) {
    const std::uint64_t b = bits(y);
    const auto high = static_cast<std::uint32_t>(b >> 32);
    const int E = exponent_field(y) - 1023;
    if (static_cast<std::uint32_t>(b) != 0 || E < 0) return false;
    if (E < 31 && (high & 0xFFFFF) == 0) return true;
    return E < 21 && (high & ((1u << (20 - E)) - 1)) == 0;
}

}  // namespace

// Integer powers by squaring, everything else as e^(y log x) with the
// logarithm's real part ln|x| and imaginary part arg x.
extern "C" ORV_EXPORT qcomplex _orvane_cpowl(qcomplex x, qcomplex y) {
    if (is_zero(x)) return is_zero(y) ? complex_nan() : complex_zero();
    if (eq(y.im.hi, 0.0) && small_integer(y.re.hi)) return _orvane_cqtoi(x, to_int(y.re.hi));
    quad L = logl(sqrtl(norm(x)));
    quad T = atan2l(x.im, x.re);
    quad A, B;
    if (eq(y.im.hi, 0.0)) {
        A = qmul(L, y.re);
        B = qmul(T, y.re);
    } else {
        A = qsub(qmul(L, y.re), qmul(T, y.im));
        B = qadd(qmul(L, y.im), qmul(T, y.re));
    }
    return polar(expl(A), B);
}

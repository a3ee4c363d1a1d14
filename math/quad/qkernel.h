// What the transcendental quad functions share: stored constants as the bit
// patterns of their two halves, the x87 first guesses of the Newton steps,
// and the internal trigonometric kernel.
#pragma once

#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"

#include <bit>
#include <cstdint>

namespace orv::qk {

constexpr quad pair(std::uint64_t hi, std::uint64_t lo) {
    return quad{std::bit_cast<double>(hi), std::bit_cast<double>(lo)};
}

// The constants are stored to about 31 decimal digits, not rounded from the
// exact values: the results of the functions are those of these pairs.
inline constexpr quad LN2 = pair(0x3FE62E42FEFA39EF, 0x3C7ABC9E3B39803C);
inline constexpr quad SQRTH = pair(0x3FE6A09E667F3BCD, 0xBC8BDD3413B26458);  // sqrt(1/2)
inline constexpr quad PI = pair(0x400921FB54442D18, 0x3CA1A62633145C02);
inline constexpr quad PIO2 = pair(0x3FF921FB54442D18, 0x3C91A62633145C02);
inline constexpr quad PIO4 = pair(0x3FE921FB54442D18, 0x3C81A62633145C04);

inline constexpr double kInf = std::bit_cast<double>(0x7FF0000000000000ull);

inline quad negate(quad x) { return make(-x.hi, -x.lo); }

inline double absd(double x) { return __builtin_fabs(x); }

// The polynomial evaluators take their coefficients through a plain
// pointer; the tables stay read-only.
inline quad poly_n(quad x, const quad *c, int n) { return _orvane_polyN(x, const_cast<quad *>(c), n); }
inline quad poly_d(quad x, const quad *c, int n) { return _orvane_polyD(x, const_cast<quad *>(c), n); }

// Double-precision sine and cosine for first guesses and the denominators
// of Newton steps: any double accuracy serves there.
inline double fsin(double a) {
    __asm__("fsin" : "+t"(a));
    return a;
}
inline double fcos(double a) {
    __asm__("fcos" : "+t"(a));
    return a;
}

}  // namespace orv::qk

// Sine (mode 1), cosine (2) or tangent (3) of x.
extern "C" quad __qtrig(quad x, int mode);

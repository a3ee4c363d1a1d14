// The slow division family: shift-and-subtract on pairs of 32-bit words,
// with no x87 arithmetic and no call of the fast family.
//
// A zero divisor gives its defined value without executing a hardware
// division by zero: these helpers never fault.
#include "arith/orvane.h"

namespace orv {
namespace {

struct DivResult {
    std::uint64_t quotient;
    std::uint64_t remainder;
};

// Divides magnitudes with b of at least 2^32 or a of at least 2^32.
// b is normalised first, which gives the number of steps; the first step
// compares against the normalised b and then halves it, every later step
// keeps b and doubles the remainder instead, which cannot overflow because
// the halved b has its top bit clear.
DivResult shift_subtract(std::uint64_t a, std::uint64_t b) {
    int steps = 1;
    while (!(hi_word(b) & 0x80000000u)) {
        b <<= 1;
        ++steps;
    }
    std::uint64_t q = 0;
    std::uint64_t r = a;
    int doublings = 0;
    int step = 0;
    while (step < steps) {
        q <<= 1;
        if (r >= b) {
            r -= b;
            q |= 1;
        }
        ++step;
        if (step == 1) {
            b >>= 1;
        } else {
            r <<= 1;
            ++doublings;
        }
        if (r == 0) break;
    }
    q <<= steps - step;
    r >>= doublings;
    return {q, r};
}

// Magnitudes with a non-zero divisor, once the early exits are past.
DivResult divide_magnitudes(std::uint64_t a, std::uint64_t b) {
    if (hi_word(a) == 0 && hi_word(b) == 0) {
        std::uint32_t x = lo_word(a), y = lo_word(b);
        return {x / y, x % y};
    }
    return shift_subtract(a, b);
}

constexpr std::uint64_t kSignedByZero = 0x7FFFFFFFFFFFFFFFull;
constexpr std::uint64_t kUnsignedByZero = ~0ull;

std::uint64_t magnitude(long long v) {
    std::uint64_t u = static_cast<std::uint64_t>(v);
    return v < 0 ? 0 - u : u;
}

// Signed forms: quotient with the sign of a xor b, remainder with the sign
// of a. The early exit needs both magnitudes below 2^63.
DivResult signed_divide(long long a, long long b) {
    std::uint64_t ua = magnitude(a), ub = magnitude(b);
    if (!(hi_word(ua) & 0x80000000u) && !(hi_word(ub) & 0x80000000u) && ua < ub)
        return {0, static_cast<std::uint64_t>(a)};
    if (ub == 0) return {kSignedByZero, kSignedByZero};
    DivResult m = divide_magnitudes(ua, ub);
    if ((a < 0) != (b < 0)) m.quotient = 0 - m.quotient;
    if (a < 0) m.remainder = 0 - m.remainder;
    return m;
}

DivResult unsigned_divide(std::uint64_t a, std::uint64_t b) {
    if (a < b) return {0, a};
    if (hi_word(b) & 0x80000000u) return {1, a - b};
    if (b == 0) return {kUnsignedByZero, kUnsignedByZero};
    return divide_magnitudes(a, b);
}

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT long long _orvane_slow_ldiv(long long a, long long b) {
    return static_cast<long long>(orv::signed_divide(a, b).quotient);
}

extern "C" ORV_EXPORT long long _orvane_slow_lmod(long long a, long long b) {
    return static_cast<long long>(orv::signed_divide(a, b).remainder);
}

extern "C" ORV_EXPORT unsigned long long _orvane_slow_uldiv(unsigned long long a,
                                                           unsigned long long b) {
    return orv::unsigned_divide(a, b).quotient;
}

extern "C" ORV_EXPORT unsigned long long _orvane_slow_ulmod(unsigned long long a,
                                                           unsigned long long b) {
    return orv::unsigned_divide(a, b).remainder;
}

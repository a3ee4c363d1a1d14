// The slow conversions of 64-bit integers to floating point, building the
// bits by hand: the magnitude is shifted one bit at a time until its
// leading one stands where the implicit bit goes, and the exponent follows
// each step. Bits shifted out are dropped, so these truncate toward zero
// where the fast forms round when the caller stores the value.
#include <bit>

#include "arith/orvane.h"

namespace orv {
namespace {

double to_double(std::uint64_t m, bool negative) {
    if (m == 0) return 0.0;
    int e = 1075;
    while (m >> 53) {
        m >>= 1;
        ++e;
    }
    while (!(m >> 52)) {
        m <<= 1;
        --e;
    }
    std::uint64_t bits = (static_cast<std::uint64_t>(negative) << 63) |
                         (static_cast<std::uint64_t>(e) << 52) |
                         (m & 0x000FFFFFFFFFFFFFull);
    return std::bit_cast<double>(bits);
}

// A value with a non-zero high word starts from the high word alone, as
// if the low word were already shifted out: exponent 150 + 32.
float to_float(std::uint64_t m, bool negative) {
    if (m == 0) return 0.0f;
    int e = hi_word(m) != 0 ? 182 : 150;
    std::uint32_t hi = hi_word(m), lo = lo_word(m);
    std::uint32_t s = hi != 0 ? hi : lo;
    if (hi != 0) {
        // Bring bits of the low word in from below while the high word is
        // short of 24 bits; drop bits off the bottom while it is over.
        while (!(s >> 23)) {
            s = (s << 1) | (lo >> 31);
            lo <<= 1;
            --e;
        }
    }
    while (s >> 24) {
        s >>= 1;
        ++e;
    }
    while (!(s >> 23)) {
        s <<= 1;
        --e;
    }
    std::uint32_t bits = (static_cast<std::uint32_t>(negative) << 31) |
                         (static_cast<std::uint32_t>(e) << 23) | (s & 0x007FFFFF);
    return std::bit_cast<float>(bits);
}

std::uint64_t magnitude(long long v) {
    std::uint64_t u = static_cast<std::uint64_t>(v);
    return v < 0 ? 0 - u : u;
}

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT double _orvane_slow_cvtlld(long long x) {
    return orv::to_double(orv::magnitude(x), x < 0);
}

extern "C" ORV_EXPORT double _orvane_slow_cvtulld(unsigned long long x) {
    return orv::to_double(x, false);
}

extern "C" ORV_EXPORT float _orvane_slow_cvtllf(long long x) {
    return orv::to_float(orv::magnitude(x), x < 0);
}

extern "C" ORV_EXPORT float _orvane_slow_cvtullf(unsigned long long x) {
    return orv::to_float(x, false);
}

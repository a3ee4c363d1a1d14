// The slow conversions of floating point to signed 64 bits: the value's
// fields taken apart as integers and the significand shifted into place
// one bit at a time. Truncation toward zero falls out of the bits shifted
// away. Saturation goes by the sign bit alone, so a NaN with its sign set
// gives the negative limit here.
#include <bit>

#include "arith/orvane.h"

namespace orv {
namespace {

constexpr std::uint64_t kMax = 0x7FFFFFFFFFFFFFFFull;
constexpr std::uint64_t kMin = 0x8000000000000000ull;

long long apply_sign(std::uint64_t magnitude, bool negative) {
    return static_cast<long long>(negative ? 0 - magnitude : magnitude);
}

}  // namespace
}  // namespace orv

extern "C" ORV_EXPORT long long _orvane_slow_cvtdll(double x) {
    using namespace orv;
    std::uint64_t bits = std::bit_cast<std::uint64_t>(x);
    bool negative = (hi_word(bits) & 0x80000000u) != 0;
    int e = static_cast<int>((hi_word(bits) >> 20) & 0x7FF);
    if (e >= 1086) return static_cast<long long>(negative ? kMin : kMax);
    std::uint64_t m = (bits & 0x000FFFFFFFFFFFFFull) | 0x0010000000000000ull;
    // Exponents far below 1075 shift everything out: zero and subnormals
    // give 0.
    for (int n = 1075 - e; n > 0 && m != 0; --n) m >>= 1;
    for (int n = e - 1075; n > 0; --n) m <<= 1;
    return apply_sign(m, negative);
}

extern "C" ORV_EXPORT long long _orvane_slow_cvtfll(float x) {
    using namespace orv;
    std::uint32_t bits = std::bit_cast<std::uint32_t>(x);
    bool negative = (bits & 0x80000000u) != 0;
    int e = static_cast<int>((bits >> 23) & 0xFF);
    if (e < 127) return 0;
    if (e >= 190) return static_cast<long long>(negative ? kMin : kMax);
    std::uint32_t m = (bits & 0x007FFFFF) | 0x00800000;
    if (e <= 150) return apply_sign(m >> (150 - e), negative);
    // Left across the word boundary: below 159 the significand still fits
    // the low word, up to 182 it straddles both, above that it has left it.
    std::uint32_t hi = 0, lo = m;
    for (int n = e - 150; n > 0; --n) {
        hi = (hi << 1) | (lo >> 31);
        lo <<= 1;
    }
    return apply_sign(make64(hi, lo), negative);
}

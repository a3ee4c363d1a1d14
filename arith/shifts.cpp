// Variable 64-bit shifts on two words. A count of 64 or more is not
// reduced modulo 64: everything is shifted out. A negative count is
// outside the contract.
#include "arith/orvane.h"

extern "C" ORV_EXPORT long long _orvane_arlshift(long long x, int n) {
    using namespace orv;
    std::uint64_t u = static_cast<std::uint64_t>(x);
    std::int32_t hi = static_cast<std::int32_t>(hi_word(u));
    std::uint32_t lo = lo_word(u);
    std::uint32_t sign = static_cast<std::uint32_t>(hi >> 31);
    if (n <= 0) return x;
    if (n >= 64) return static_cast<long long>(make64(sign, sign));
    if (n >= 32)
        return static_cast<long long>(
            make64(sign, static_cast<std::uint32_t>(hi >> (n - 32))));
    std::uint32_t new_lo = (lo >> n) | (static_cast<std::uint32_t>(hi) << (32 - n));
    return static_cast<long long>(make64(static_cast<std::uint32_t>(hi >> n), new_lo));
}

extern "C" ORV_EXPORT long long _orvane_llshift(long long x, int n) {
    using namespace orv;
    std::uint64_t u = static_cast<std::uint64_t>(x);
    std::uint32_t hi = hi_word(u), lo = lo_word(u);
    if (n <= 0) return x;
    if (n >= 64) return 0;
    if (n >= 32) return static_cast<long long>(make64(lo << (n - 32), 0));
    return static_cast<long long>(make64((hi << n) | (lo >> (32 - n)), lo << n));
}

extern "C" ORV_EXPORT long long _orvane_rlshift(long long x, int n) {
    using namespace orv;
    std::uint64_t u = static_cast<std::uint64_t>(x);
    std::uint32_t hi = hi_word(u), lo = lo_word(u);
    if (n <= 0) return x;
    if (n >= 64) return 0;
    if (n >= 32) return static_cast<long long>(make64(0, hi >> (n - 32)));
    return static_cast<long long>(make64(hi >> n, (lo >> n) | (hi << (32 - n))));
}

// An x96 to an integer power by binary powering; a negative power takes
// the reciprocal of the finished positive one.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

extern "C" ORV_EXPORT void _cmath_xtoi(const std::uint32_t* x, int power,
                                       std::uint32_t* result) {
    using namespace orv;
    if (power == 0) {
        copy(result, kOne.word);
        return;
    }
    x96 base, accumulator = kOne;
    copy(base.word, x);
    // Unsigned, so that the most negative power also ends: its magnitude
    // is 2^31, whatever that makes of the result.
    std::uint32_t count =
        power < 0 ? 0u - static_cast<std::uint32_t>(power) : static_cast<std::uint32_t>(power);
    for (;;) {
        std::uint32_t bit = count & 1;
        count >>= 1;
        if (count == 0) break;
        if (bit) _mulx(base.word, accumulator.word, accumulator.word);
        _mulx(base.word, base.word, base.word);
    }
    _mulx(base.word, accumulator.word, result);
    if (power < 0) _divx(kOne.word, result, result);
}

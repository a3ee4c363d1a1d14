// One decimal digit into a wide integer: number * 10 + (digit & 15), one
// word multiply a word, the carry going up. Nothing above 96 bits is kept;
// the callers stop feeding digits well before.
#include "stdio/x96/x96.h"

extern "C" ORV_EXPORT void _mulx10(std::uint32_t* number, std::uint32_t digit) {
    std::uint64_t t = static_cast<std::uint64_t>(number[2]) * 10 + (digit & 15);
    number[2] = static_cast<std::uint32_t>(t);
    t = static_cast<std::uint64_t>(number[1]) * 10 + (t >> 32);
    number[1] = static_cast<std::uint32_t>(t);
    number[0] = number[0] * 10 + static_cast<std::uint32_t>(t >> 32);
}

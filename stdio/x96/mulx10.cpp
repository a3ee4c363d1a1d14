// One decimal digit into a wide integer: (n * 4 + n) * 2 + digit. Nothing
// above 96 bits is kept; the callers stop feeding digits well before.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

extern "C" ORV_EXPORT void _mulx10(std::uint32_t* number, std::uint32_t digit) {
    std::uint32_t hi = number[0], mid = number[1], lo = number[2];
    shift_left96(hi, mid, lo);
    shift_left96(hi, mid, lo);
    add96(hi, mid, lo, number[2]);
    add64(hi, mid, number[1]);
    hi += number[0];
    shift_left96(hi, mid, lo);
    add96(hi, mid, lo, digit & 15);
    number[0] = hi;
    number[1] = mid;
    number[2] = lo;
}

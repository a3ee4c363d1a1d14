// Adding and subtracting a word to 64- and 96-bit integers held in
// separate words, for the digit gatherers.
#include "stdio/x96/x96.h"

using namespace orv::x96f;

extern "C" ORV_EXPORT void _add64(std::uint32_t* hi, std::uint32_t* lo, std::uint32_t addend) {
    add64(*hi, *lo, addend);
}

extern "C" ORV_EXPORT void _add96(std::uint32_t* hi, std::uint32_t* mid, std::uint32_t* lo,
                                  std::uint32_t addend) {
    add96(*hi, *mid, *lo, addend);
}

extern "C" ORV_EXPORT void _sub64(std::uint32_t* hi, std::uint32_t* lo,
                                  std::uint32_t subtrahend) {
    sub64(*hi, *lo, subtrahend);
}

extern "C" ORV_EXPORT void _sub96(std::uint32_t* hi, std::uint32_t* mid, std::uint32_t* lo,
                                  std::uint32_t subtrahend) {
    sub96(*hi, *mid, *lo, subtrahend);
}

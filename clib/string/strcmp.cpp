#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

// Once the first string is word-aligned, equal words with no terminator are
// skipped whole. Words of the second string are put together from the two
// aligned words they straddle; the second of those is read only when the
// first holds no terminator, so no read goes past the string's page. The
// bytes decide the rest.
extern "C" ORV_EXPORT int strcmp(const char *a, const char *b) {
    using namespace orv::scan;
    auto *x = reinterpret_cast<const unsigned char *>(a);
    auto *y = reinterpret_cast<const unsigned char *>(b);
    for (; !aligned(x); ++x, ++y)
        if (*x != *y || *x == 0) return *x - *y;
    auto *wx = reinterpret_cast<const word *>(x);
    const unsigned off = reinterpret_cast<std::uintptr_t>(y) & 3;
    if (off == 0) {
        auto *wy = reinterpret_cast<const word *>(y);
        for (; *wx == *wy && !zero_bytes(*wx); ++wx) ++wy;
    } else {
        const unsigned shift = off * 8;
        const std::uint32_t before = (1u << shift) - 1;
        const word *wy = word_of(y);
        for (std::uint32_t low = *wy; !zero_bytes(low | before); ++wx) {
            std::uint32_t high = *++wy;
            if (*wx != ((low >> shift) | (high << (32 - shift))) || zero_bytes(*wx)) break;
            low = high;
        }
    }
    y += reinterpret_cast<const unsigned char *>(wx) - x;
    x = reinterpret_cast<const unsigned char *>(wx);
    for (; *x == *y && *x != 0; ++x, ++y) {}
    return *x - *y;
}

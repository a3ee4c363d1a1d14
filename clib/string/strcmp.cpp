#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

namespace {

using namespace orv::scan;
using byte = unsigned char;

std::uintptr_t page_place(const void *p) { return reinterpret_cast<std::uintptr_t>(p) & 4095; }
std::uint32_t load(const byte *p) { return *reinterpret_cast<const any_word *>(p); }

// Bit 7 of each byte of w that is not zero, exactly.
std::uint32_t nonzero_bytes(std::uint32_t w) { return (((w & ~highs) + ~highs) | w) & highs; }

// Where the words at x and y decide, as a mark: the first byte that
// differs or ends the first string; 0 if neither happens in them.
std::uint32_t decides(const byte *x, const byte *y) {
    std::uint32_t p = load(x);
    return zero_bytes(p) | nonzero_bytes(p ^ load(y));
}

int difference(const byte *x, const byte *y, std::uint32_t marks) {
    unsigned at = first_marked(marks);
    return x[at] - y[at];
}

} // namespace

// Eight bytes a step while both strings agree and neither ends. Words are
// read at any address, but only where both reads stay inside their pages,
// so no read goes past a terminator into the next page; near a page end
// the bytes go one by one.
extern "C" ORV_EXPORT int strcmp(const char *a, const char *b) {
    auto *x = reinterpret_cast<const byte *>(a);
    auto *y = reinterpret_cast<const byte *>(b);
    // Most unequal strings differ at once.
    if (*x != *y || *x == 0) return *x - *y;
    for (;;) {
        std::uintptr_t further = page_place(x) > page_place(y) ? page_place(x) : page_place(y);
        for (std::uintptr_t room = 4096 - further; room >= 8; room -= 8, x += 8, y += 8) {
            std::uint32_t p0 = load(x), p1 = load(x + 4);
            if (((p0 ^ load(y)) | (p1 ^ load(y + 4))) == 0 && !maybe_zero(p0, p1)) continue;
            forget(x), forget(y);
            if (std::uint32_t m = decides(x, y)) return difference(x, y, m);
            if (std::uint32_t m = decides(x + 4, y + 4)) return difference(x + 4, y + 4, m);
        }
        for (int k = 0; k < 8; ++k, ++x, ++y)
            if (*x != *y || *x == 0) return *x - *y;
    }
}

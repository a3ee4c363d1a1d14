#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

// The terminator can be found too. Whole words with neither the character
// nor a terminator are skipped; the bytes of the word that has one decide.
extern "C" ORV_EXPORT char *strchr(const char *s, int ch) {
    const char want = static_cast<char>(ch);
    for (; !orv::scan::aligned(s); ++s) {
        if (*s == want) return const_cast<char *>(s);
        if (*s == 0) return nullptr;
    }
    const std::uint32_t pattern = static_cast<unsigned char>(want) * 0x01010101u;
    auto *w = reinterpret_cast<const orv::scan::word *>(s);
    while (!orv::scan::has_zero(*w) && !orv::scan::has_zero(*w ^ pattern)) ++w;
    for (s = reinterpret_cast<const char *>(w);; ++s) {
        if (*s == want) return const_cast<char *>(s);
        if (*s == 0) return nullptr;
    }
}

#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

// The terminator can be found too. Each word is tested at once for the
// character and for a terminator; the first of either decides.
extern "C" ORV_EXPORT char *strchr(const char *s, int ch) {
    using namespace orv::scan;
    const char want = static_cast<char>(ch);
    const std::uint32_t pattern = static_cast<unsigned char>(want) * 0x01010101u;
    const std::uint32_t before = before_mask(s);
    const word *w = word_of(s);
    std::uint32_t marks = zero_bytes(*w | before) | zero_bytes((*w ^ pattern) | before);
    while (marks == 0) {
        ++w;
        marks = zero_bytes(*w) | zero_bytes(*w ^ pattern);
    }
    const char *found = reinterpret_cast<const char *>(w) + first_marked(marks);
    return *found == want ? const_cast<char *>(found) : nullptr;
}

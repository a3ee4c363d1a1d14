#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

// The count is signed: one above 0x7FFFFFFF searches nothing. A word at a
// time; a match in the last word that lies behind the block doesn't count.
extern "C" ORV_EXPORT void *memchr(const void *buf, int ch, size_t n) {
    using namespace orv::scan;
    if (static_cast<int>(n) <= 0) return nullptr;
    auto *p = static_cast<const unsigned char *>(buf);
    const std::uint32_t pattern = static_cast<unsigned char>(ch) * 0x01010101u;
    const word *w = word_of(p);
    std::uint32_t marks = zero_bytes((*w ^ pattern) | before_mask(p));
    while (marks == 0) {
        ++w;
        if (static_cast<size_t>(reinterpret_cast<const unsigned char *>(w) - p) >= n) return nullptr;
        marks = zero_bytes(*w ^ pattern);
    }
    const unsigned char *found = reinterpret_cast<const unsigned char *>(w) + first_marked(marks);
    return static_cast<size_t>(found - p) < n ? const_cast<unsigned char *>(found) : nullptr;
}

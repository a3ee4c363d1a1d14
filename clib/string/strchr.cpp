#include "include/string.h"
#include "clib/string/scan.h"
#include "clib/string/wide.h"
#include "runtime/export.h"

extern "C" [[gnu::target("sse2")]] ORV_HIDDEN char *__wide_strchr(const char *s, char want) {
    const char *found = orv::wide::find(s, orv::wide::ZerosOr(want));
    return *found == want ? const_cast<char *>(found) : nullptr;
}

// The terminator can be found too. Each block is tested at once for the
// character and for a terminator; the first of either decides.
extern "C" ORV_EXPORT char *strchr(const char *s, int ch) {
    using namespace orv::scan;
    const char want = static_cast<char>(ch);
    if (orv::wide::usable()) return __wide_strchr(s, want);
    const std::uint32_t pattern = static_cast<unsigned char>(want) * ones;
    const char *p = s, *found;
    if (fits_block(s)) {
        found = first_zero_or(s, pattern);
        p = next_block(s);
    } else {
        for (found = nullptr; found == nullptr && !block_aligned(p); ++p)
            if (*p == want || *p == 0) found = p;
    }
    for (; found == nullptr; p += block) found = first_zero_or(p, pattern);
    return *found == want ? const_cast<char *>(found) : nullptr;
}

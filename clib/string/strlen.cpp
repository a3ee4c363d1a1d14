#include "include/string.h"
#include "clib/string/scan.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT size_t strlen(const char *s) {
    using namespace orv::scan;
    const word *w = word_of(s);
    std::uint32_t marks = zero_bytes(*w | before_mask(s));
    while (marks == 0) marks = zero_bytes(*++w);
    return static_cast<size_t>(reinterpret_cast<const char *>(w) + first_marked(marks) - s);
}

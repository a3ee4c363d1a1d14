#include "runtime/export.h"

#include <cstddef>

// Words first, then the odd bytes.
extern "C" ORV_EXPORT void *memcpy(void *dst, const void *src, std::size_t n) {
    void *d = dst;
    const void *s = src;
    std::size_t words = n >> 2, rest = n & 3;
    __asm__ volatile("rep movsl\n\tmovl %[rest], %%ecx\n\trep movsb"
                     : "+D"(d), "+S"(s), "+c"(words)
                     : [rest] "r"(rest)
                     : "memory");
    return dst;
}

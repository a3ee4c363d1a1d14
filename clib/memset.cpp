#include "runtime/export.h"

#include <cstddef>

extern "C" ORV_EXPORT void *memset(void *dst, int c, std::size_t n) {
    unsigned fill = static_cast<unsigned char>(c) * 0x01010101u;
    void *d = dst;
    std::size_t words = n >> 2, rest = n & 3;
    __asm__ volatile("rep stosl\n\tmovl %[rest], %%ecx\n\trep stosb"
                     : "+D"(d), "+c"(words)
                     : "a"(fill), [rest] "r"(rest)
                     : "memory");
    return dst;
}

// The stand-in's private copies of the two memory routines that the
// compiler may call on its own.
#include <cstddef>

extern "C" __attribute__((visibility("hidden"))) void *memcpy(void *dst, const void *src,
                                                              std::size_t n) {
    void *d = dst;
    const void *s = src;
    __asm__ volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
    return dst;
}

extern "C" __attribute__((visibility("hidden"))) void *memset(void *dst, int c, std::size_t n) {
    void *d = dst;
    __asm__ volatile("rep stosb" : "+D"(d), "+c"(n) : "a"(c) : "memory");
    return dst;
}

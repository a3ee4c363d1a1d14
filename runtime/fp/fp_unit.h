// The low level of the floating-point state: one machine instruction or a
// few each, on the x87 unit and the SSE unit's MXCSR.
#pragma once

#include <cstdint>

namespace orv {

// Stores the current control word, loads the new one, answers the old one.
inline std::uint32_t __x87_load_control(std::uint32_t word) {
    std::uint16_t old, w = static_cast<std::uint16_t>(word);
    __asm__ volatile("fnstcw %0\n\tfldcw %1" : "=m"(old) : "m"(w));
    return old;
}

inline std::uint32_t __x87_read_control() {
    std::uint16_t w;
    __asm__ volatile("fnstcw %0" : "=m"(w));
    return w;
}

inline std::uint32_t __x87_read_status() {
    std::uint16_t w;
    __asm__ volatile("fnstsw %0" : "=m"(w));
    return w;
}

// The status word can only be replaced through a whole state image.
inline void __x87_write_status(std::uint32_t word) {
    struct Image {
        std::uint32_t control, status, rest[25];
    } image;
    static_assert(sizeof(Image) == 108);
    __asm__ volatile("fnsave %0" : "=m"(image));
    image.status = (image.status & 0xFFFF0000u) | (word & 0xFFFFu);
    __asm__ volatile("frstor %0" : : "m"(image));
}

inline std::uint32_t __mxcsr_read() {
    std::uint32_t v;
    __asm__ volatile("stmxcsr %0" : "=m"(v));
    return v;
}

inline void __mxcsr_write(std::uint32_t value) {
    __asm__ volatile("ldmxcsr %0" : : "m"(value));
}

// The MXCSR_MASK word of an FXSAVE image; 0 on processors that predate it.
inline std::uint32_t fxsave_mxcsr_mask() {
    alignas(16) std::uint32_t area[128];
    area[7] = 0;
    __asm__ volatile("fxsave %0" : "+m"(area));
    return area[7];
}

// CPUID leaf 1, register EDX.
inline std::uint32_t cpuid_features() {
    std::uint32_t a = 1, b, c = 0, d;
    __asm__ volatile("cpuid" : "+a"(a), "=b"(b), "+c"(c), "=d"(d));
    return d;
}

} // namespace orv

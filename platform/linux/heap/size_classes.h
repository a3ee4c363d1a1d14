// Small-block size classes: steps of 8 bytes up to 128, then four classes
// per doubling up to one slab. The quarter steps bound the rounding waste
// to a quarter (an eighth on average) and keep every class from 160 bytes
// up a multiple of 16.
#pragma once

#include <cstdint>

namespace orv::k32::heap {

inline constexpr unsigned slab_shift = 16;
inline constexpr std::uint32_t slab_bytes = std::uint32_t{1} << slab_shift;

// Blocks above this size are mappings of their own.
inline constexpr std::uint32_t small_max = slab_bytes;

inline constexpr unsigned fine_classes = 16;   // 8, 16, ... 128
inline constexpr unsigned steps_log2 = 2;      // classes per doubling: 4
inline constexpr unsigned class_count =
    fine_classes + (slab_shift - 7) * (1u << steps_log2);

// The class of a request of `size` bytes, 0 < size <= small_max (0 is
// treated as 1).
constexpr unsigned class_of(std::uint32_t size) {
    if (size <= 128) return size == 0 ? 0 : (size - 1) >> 3;
    unsigned e = 31u - static_cast<unsigned>(__builtin_clz(size - 1)); // >= 7
    return fine_classes + (e - 7) * (1u << steps_log2) +
           ((size - 1) >> (e - steps_log2)) - (1u << steps_log2);
}

constexpr std::uint32_t compute_class_size(unsigned cls) {
    if (cls < fine_classes) return (cls + 1) * 8;
    unsigned k = cls - fine_classes;
    unsigned e = 7 + (k >> steps_log2);
    unsigned q = k & ((1u << steps_log2) - 1);
    return ((1u << steps_log2) + q + 1) << (e - steps_log2);
}

struct ClassSizes {
    std::uint32_t bytes[class_count];
    constexpr ClassSizes() : bytes() {
        for (unsigned c = 0; c < class_count; ++c) bytes[c] = compute_class_size(c);
    }
};
inline constexpr ClassSizes class_sizes{};

constexpr std::uint32_t class_size(unsigned cls) { return class_sizes.bytes[cls]; }

static_assert(class_size(class_of(1)) == 8 && class_size(class_of(128)) == 128);
static_assert(class_size(class_of(129)) == 160 && class_size(class_of(257)) == 320);
static_assert(class_of(small_max) == class_count - 1 && class_size(class_count - 1) == small_max);
static_assert(class_count <= 255);

} // namespace orv::k32::heap

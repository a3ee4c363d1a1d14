// The generator of the C++ side: 55 words with wrap-around subtraction, and
// the one instance that __long_random draws from.
#pragma once

#include "runtime/export.h"

#include <cstdint>

class __random_generator {
public:
    constexpr __random_generator() : table{}, index1(0), index2(0) {}
    explicit __random_generator(unsigned long seed);
    ORV_EXPORT void seed(unsigned long j);

    std::uint32_t table[55];
    std::uint32_t index1, index2;
};

static_assert(sizeof(__random_generator) == 57 * 4);
static_assert(__builtin_offsetof(__random_generator, index1) == 55 * 4);
static_assert(__builtin_offsetof(__random_generator, index2) == 56 * 4);

ORV_EXPORT unsigned long __long_random(unsigned long limit);

namespace orv::rnd {
// The instance behind __long_random, built at start-up.
extern __random_generator shared_generator;
inline constexpr unsigned long start_seed = 161803398;
} // namespace orv::rnd

#include "clib/random/random_generator.h"

namespace orv::rnd {
constinit __random_generator shared_generator;
} // namespace orv::rnd

// The table starts zeroed: the seeding loop leaves one word unwritten.
__random_generator::__random_generator(unsigned long s) : table{}, index1(0), index2(0) {
    seed(s);
}

// Unsigned 32-bit arithmetic throughout, with no reduction.
void __random_generator::seed(unsigned long j) {
    table[54] = j;
    std::uint32_t k = 1;
    for (unsigned i = 0; i < 54; ++i) {
        table[21 * i % 55] = k;
        std::uint32_t next = j - k;
        j = k;
        k = next;
    }
    for (int pass = 0; pass < 4; ++pass)
        for (unsigned i = 0; i < 55; ++i) table[i] -= table[(i + 31) % 55];
    index1 = 0;
    index2 = 31;
}

unsigned long __long_random(unsigned long limit) {
    __random_generator &g = orv::rnd::shared_generator;
    g.index1 = (g.index1 + 1) % 55;
    g.index2 = (g.index2 + 1) % 55;
    g.table[g.index1] -= g.table[g.index2];
    return g.table[g.index1] % limit;
}

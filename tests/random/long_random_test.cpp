// The C++ generator: the instance built at start-up, and seeding.
#include "harness.h"

class __random_generator {
public:
    void seed(unsigned long j);
    unsigned long table[55];
    unsigned long index1, index2;
};
unsigned long __long_random(unsigned long limit);

// One draw, as the library's instance makes it.
static unsigned long draw(__random_generator &g, unsigned long limit) {
    g.index1 = (g.index1 + 1) % 55;
    g.index2 = (g.index2 + 1) % 55;
    g.table[g.index1] -= g.table[g.index2];
    return g.table[g.index1] % limit;
}

int main() {
    t_section("seeded before main");
    static const unsigned long first[5] = {868, 232, 688, 672, 24};
    for (unsigned long want : first) CHECK_EQ(__long_random(1000), want);

    t_section("seed on an instance of our own");
    static __random_generator g; // zeroed, as the library's instance starts
    g.seed(161803398);
    CHECK_EQ(g.index1, 0);
    CHECK_EQ(g.index2, 31);
    for (unsigned long want : first) CHECK_EQ(draw(g, 1000), want);

    t_section("one word is never written by seeding");
    static __random_generator dirty;
    for (unsigned long &w : dirty.table) w = 0xDEADBEEF;
    dirty.seed(161803398);
    static __random_generator clean;
    clean.seed(161803398);
    int differ = 0;
    for (int i = 0; i < 55; ++i) differ += dirty.table[i] != clean.table[i];
    CHECK(differ > 0); // the stale word flows into the mixing passes

    t_section("limits");
    int over = 0, ones = 0;
    for (int i = 0; i < 1000; ++i) over += __long_random(7) >= 7, ones += __long_random(2) == 1;
    CHECK_EQ(over, 0);
    CHECK(ones > 300 && ones < 700);
    return t_finish();
}

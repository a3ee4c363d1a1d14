#include "clib/random/c_generator.h"
#include "include/stdlib.h"
#include "runtime/export.h"

using orv::rnd::c_generator;

extern "C" ORV_EXPORT void srand(unsigned seed) {
    c_generator.pending_seed = seed;
    orv::rnd::seed_table();
}

extern "C" ORV_EXPORT int rand(void) {
    using namespace orv::rnd;
    if (c_generator.pending_seed != 0) seed_table();
    if (++c_generator.front == static_cast<std::int32_t>(table_words)) c_generator.front = 0;
    if (++c_generator.rear == static_cast<std::int32_t>(table_words)) c_generator.rear = 0;
    std::int32_t *w = c_generator.table;
    std::int32_t r = w[c_generator.front] - w[c_generator.rear];
    if (r < 0) r += modulus;
    w[c_generator.front] = r;
    return r;
}

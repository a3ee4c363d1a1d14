#include "clib/random/c_generator.h"

namespace orv::rnd {

namespace {
constinit std::int32_t builtin_table[table_words] = {};
} // namespace

constinit CGenerator c_generator = {builtin_table, 1, 0, 0};

void seed_table() {
    std::int32_t *w = c_generator.table;
    std::int32_t x = static_cast<std::int32_t>(c_generator.pending_seed + 161803398u);
    std::int32_t v = x % modulus;
    if (v < 0) v += modulus;
    c_generator.pending_seed = 0;

    // Words 0 to 53 in the order of a stride of 19 modulo 54; word 54 is v.
    w[54] = v;
    std::int32_t a = v, b = 1;
    for (int i = 0; i < 54; ++i) {
        w[i * 19 % 54] = b;
        std::int32_t c = a - b;
        a = b;
        b = c < 0 ? c + modulus : c;
    }
    // Three in-place passes that mix each word with the one 31 further on.
    for (int pass = 0; pass < 3; ++pass) {
        for (unsigned k = 0; k < table_words; ++k) {
            std::int32_t r = w[k] - w[(k + 31) % table_words];
            w[k] = r < 0 ? r + modulus : r;
        }
    }
    c_generator.front = -1;
    c_generator.rear = 30;
}

} // namespace orv::rnd

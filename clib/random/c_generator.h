// The state of rand: a table of 55 words below M, a pending seed, and two
// positions that belong to the generator, not to the table.
#pragma once

#include <cstdint>

namespace orv::rnd {

inline constexpr std::int32_t modulus = 0x7FFFFFFF;
inline constexpr unsigned table_words = 55;

struct CGenerator {
    std::int32_t *table;
    std::uint32_t pending_seed;  // not 0: the table is yet to be built
    std::int32_t front, rear;
};

extern CGenerator c_generator;

// Builds the table from the pending seed and clears it.
void seed_table();

} // namespace orv::rnd

// The read-only tables of log and pow, held as bit patterns.
#pragma once

#include "math/fp.h"

namespace orv::m {

extern const u64 log_inv[129];
extern const u64 log_lead[129];
extern const u64 log_trail[129];

// A1[j] = 2^(-j/16) rounded to double, j = 0..16 (tools/math_tables.c);
// visible to the compiler, which derives pow's search table from it.
inline constexpr u64 pow_a1[17] = {
    0x3FF0000000000000, 0x3FEEA4AFA2A490DA, 0x3FED5818DCFBA487,
    0x3FEC199BDD85529C, 0x3FEAE89F995AD3AD, 0x3FE9C49182A3F090,
    0x3FE8ACE5422AA0DB, 0x3FE7A11473EB0187, 0x3FE6A09E667F3BCD,
    0x3FE5AB07DD485429, 0x3FE4BFDAD5362A27, 0x3FE3DEA64C123422,
    0x3FE306FE0A31B715, 0x3FE2387A6E756238, 0x3FE172B83C7D517B,
    0x3FE0B5586CF9890F, 0x3FE0000000000000,
};

inline double table(const u64 *t, int i) { return from_bits(t[i]); }

}  // namespace orv::m

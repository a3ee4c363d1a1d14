// The read-only tables of logf and powf, held as bit patterns.
#pragma once

#include "math/fp.h"

namespace orv::m {

extern const u32 logf_inv[129];
extern const u32 logf_lead[129];
extern const u32 logf_trail[129];

// A1[j] = 2^(-j/16) rounded to float, j = 0..16 (tools/math_tables.c);
// visible to the compiler, which derives powf's search table from it.
inline constexpr u32 powf_a1[17] = {
    0x3F800000, 0x3F75257D, 0x3F6AC0C7, 0x3F60CCDF, 0x3F5744FD, 0x3F4E248C,
    0x3F45672A, 0x3F3D08A4, 0x3F3504F3, 0x3F2D583F, 0x3F25FED7, 0x3F1EF532,
    0x3F1837F0, 0x3F11C3D3, 0x3F0B95C2, 0x3F05AAC3, 0x3F000000,
};

inline double table(const u32 *t, int i) { return from_fbits(t[i]); }

}  // namespace orv::m

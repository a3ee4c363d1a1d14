// The read-only tables of log and pow, held as bit patterns.
#pragma once

#include "math/fp.h"

namespace orv::m {

extern const u64 log_inv[129];
extern const u64 log_lead[129];
extern const u64 log_trail[129];
extern const u64 pow_a1[17];

inline double table(const u64 *t, int i) { return from_bits(t[i]); }

}  // namespace orv::m

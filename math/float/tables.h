// The read-only tables of logf and powf, held as bit patterns.
#pragma once

#include "math/fp.h"

namespace orv::m {

extern const u32 logf_inv[129];
extern const u32 logf_lead[129];
extern const u32 logf_trail[129];
extern const u32 powf_a1[17];

inline double table(const u32 *t, int i) { return from_fbits(t[i]); }

}  // namespace orv::m

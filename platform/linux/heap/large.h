// Blocks above the largest size class: one private mapping each, given back
// to the system when freed. A 16-byte header ahead of the block keeps the
// block 16-byte aligned and records the mapping's length.
#pragma once

#include <cstdint>

namespace orv::k32::heap {

// A block of at least `size` bytes, all zero, or null.
void *large_alloc(std::uint32_t size);

// Whether `p` is the start of a large block.
bool large_valid(const void *p);

void large_free(void *p);

// Bytes the block may use: its mapping less the header.
std::uint32_t large_usable(const void *p);

// Resizes the mapping, moving it only when `may_move`. Grown bytes are zero.
// Answers the block, or null with the block untouched.
void *large_resize(void *p, std::uint32_t size, bool may_move);

} // namespace orv::k32::heap

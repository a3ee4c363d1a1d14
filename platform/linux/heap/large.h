// Blocks above the largest size class: whole pages of private mappings. A
// freed block's pages are kept for reuse, as runs that merge with their
// neighbours, while the kept ones stay small against those in use, and
// otherwise go back to the system. A 16-byte header ahead of the block
// keeps the block 16-byte aligned and records the length of its pages.
#pragma once

#include <cstdint>

namespace orv::k32::heap {

// A block of at least `size` bytes, or null. `clean` tells whether its
// bytes are zero (fresh pages) or were used before (kept ones).
void *large_alloc(std::uint32_t size, bool &clean);

// Whether `p` is the start of a large block.
bool large_valid(const void *p);

void large_free(void *p);

// Bytes the block may use: its pages less the header.
std::uint32_t large_usable(const void *p);

// Resizes the block, moving it only when `may_move`; the bytes it gains
// are zero when `zero`. Answers the block, or null with the block untouched.
void *large_resize(void *p, std::uint32_t size, bool may_move, bool zero);

} // namespace orv::k32::heap

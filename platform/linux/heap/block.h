// The heap's operations on blocks, whatever their path: small blocks from
// slabs, large ones as mappings of their own. The entry points add the
// platform's flags, fault injection and error codes on top.
#pragma once

#include <cstdint>

namespace orv::k32::heap {

// A block of at least `size` bytes, zero-filled when `zero`; null when out
// of memory.
void *block_alloc(std::uint32_t size, bool zero);

// False when `p` is not a block of this heap.
bool block_free(void *p);

// The bytes the block may use, at least what was asked for.
std::uint32_t block_size(const void *p);

// The block resized to `size`, moved unless `in_place_only`, with the bytes
// beyond the old usable size zeroed when `zero`. Null when it cannot be
// done, the old block left as it was.
void *block_resize(void *p, std::uint32_t size, bool in_place_only, bool zero);

} // namespace orv::k32::heap

// Word-at-a-time helpers for the string scans. Words are read only at
// 4-byte-aligned addresses, so a read never reaches into the next page
// past a string's terminator.
#pragma once

#include <cstdint>

namespace orv::scan {

using word = std::uint32_t __attribute__((may_alias));

// Not zero when some byte of w is zero.
inline std::uint32_t has_zero(std::uint32_t w) { return (w - 0x01010101u) & ~w & 0x80808080u; }

inline bool aligned(const void *p) { return (reinterpret_cast<std::uintptr_t>(p) & 3) == 0; }

} // namespace orv::scan

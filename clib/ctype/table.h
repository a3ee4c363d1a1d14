// Inline readers of the class table, for the library's own scanners.
#pragma once

#include "include/ctype.h"

namespace orv::ctype {

// The class bits of c, which is EOF or 0..255.
inline int bits(int c) { return _ctype[c + 1]; }

inline int to_upper(int c) { return (bits(c) & _IS_LOW) ? (c & 0x5F) : c; }
inline int to_lower(int c) { return (bits(c) & _IS_UPP) ? (c | 0x20) : c; }

} // namespace orv::ctype

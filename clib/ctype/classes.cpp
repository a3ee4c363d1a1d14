#include "include/ctype.h"
#include "clib/ctype/table.h"
#include "runtime/export.h"

// Each class test answers the table entry under its mask, the bit pattern
// itself rather than 1. The argument is used as an index unchecked, as the
// header's macros do. The names are parenthesised against those macros.

#define ORV_CLASS(name, mask) \
    extern "C" ORV_EXPORT int(name)(int c) { return orv::ctype::bits(c) & (mask); }

ORV_CLASS(isupper, _IS_UPP)
ORV_CLASS(islower, _IS_LOW)
ORV_CLASS(isalpha, _IS_UPP | _IS_LOW)
ORV_CLASS(isdigit, _IS_DIG)
ORV_CLASS(isalnum, _IS_UPP | _IS_LOW | _IS_DIG)
ORV_CLASS(isspace, _IS_SP)
ORV_CLASS(ispunct, _IS_PUN)
ORV_CLASS(isgraph, _IS_UPP | _IS_LOW | _IS_DIG | _IS_PUN)
ORV_CLASS(iscntrl, _IS_CTL)
ORV_CLASS(isprint, _IS_UPP | _IS_LOW | _IS_DIG | _IS_PUN | _IS_BLK)
ORV_CLASS(isxdigit, _IS_HEX)

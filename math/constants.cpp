// The limit and error values as writable objects; nothing in the library
// changes them.
#include "include/float.h"
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using orv::m::u32;
using orv::m::u64;

#define ORV_D(name, pattern) ORV_EXPORT constinit double name = std::bit_cast<double>(u64(pattern))
#define ORV_F(name, pattern) ORV_EXPORT constinit float name = std::bit_cast<float>(u32(pattern))

ORV_D(_DBL_EPSILON, 0x3CB0000000000000);
ORV_D(_DBL_MAX, 0x7FEFFFFFFFFFFFFF);
ORV_D(_DBL_MIN, 0x0010000000000000);
ORV_F(_FLT_EPSILON, 0x34000000);
ORV_F(_FLT_MAX, 0x7F7FFFFF);
ORV_F(_FLT_MIN, 0x00800000);
ORV_D(__DOUBLE_INF, 0x7FF0000000000000);
ORV_D(__DOUBLE_MAX, 0x7FEFFFFFFFFFFFFF);
ORV_D(__DOUBLE_NAN, 0x7FF8000000000000);
ORV_F(__FLOAT_INF, 0x7F800000);
ORV_F(__FLOAT_MAX, 0x7EFFFFFF);  // half of _FLT_MAX
ORV_F(__FLOAT_NAN, 0x7FC00000);

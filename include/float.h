#ifndef _ORV_FLOAT_H
#define _ORV_FLOAT_H

#include "_orv_defs.h"

#define FLT_RADIX 2
#define FLT_ROUNDS 1

#define FLT_MANT_DIG 24
#define FLT_DIG 6
#define FLT_MIN_EXP (-125)
#define FLT_MIN_10_EXP (-37)
#define FLT_MAX_EXP 128
#define FLT_MAX_10_EXP 38
#define FLT_EPSILON 0x1p-23F
#define FLT_MIN 0x1p-126F
#define FLT_MAX 0x1.fffffep127F

#define DBL_MANT_DIG 53
#define DBL_DIG 15
#define DBL_MIN_EXP (-1021)
#define DBL_MIN_10_EXP (-307)
#define DBL_MAX_EXP 1024
#define DBL_MAX_10_EXP 308
#define DBL_EPSILON 0x1p-52
#define DBL_MIN 0x1p-1022
#define DBL_MAX 0x1.fffffffffffffp1023

#define DECIMAL_DIG 17

_ORV_BEGIN
/* The same limits as objects of the library. */
extern double _DBL_EPSILON;
extern double _DBL_MAX;
extern double _DBL_MIN;
extern float _FLT_EPSILON;
extern float _FLT_MAX;
extern float _FLT_MIN;
_ORV_END

#endif

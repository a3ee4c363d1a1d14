#ifndef _ORV_MATH_H
#define _ORV_MATH_H

#include "_orv_defs.h"

/* In a C program built by GCC each name is given an alias that the
   compiler does not know as a built-in, while the symbol stays the
   library's own: otherwise the compiler folds constant calls with its own
   arithmetic and opens sqrt inline with FSQRT, and the program would not
   see this library's results. Define _ORV_MATH_BUILTINS to keep them. */
#if defined(__GNUC__) && !defined(__cplusplus) && !defined(_ORV_MATH_BUILTINS)
#define _ORV_MFN(name) __orv_m_##name __asm__(#name)
#define ceil __orv_m_ceil
#define floor __orv_m_floor
#define fabs __orv_m_fabs
#define exp __orv_m_exp
#define log __orv_m_log
#define log10 __orv_m_log10
#define sqrt __orv_m_sqrt
#define sin __orv_m_sin
#define cos __orv_m_cos
#define tan __orv_m_tan
#define asin __orv_m_asin
#define acos __orv_m_acos
#define atan __orv_m_atan
#define sinh __orv_m_sinh
#define cosh __orv_m_cosh
#define tanh __orv_m_tanh
#define fmod __orv_m_fmod
#define pow __orv_m_pow
#define atan2 __orv_m_atan2
#define frexp __orv_m_frexp
#define ldexp __orv_m_ldexp
#define modf __orv_m_modf
#define isnan __orv_m_isnan
#define copysign __orv_m_copysign
#define rint __orv_m_rint
#define ceilf __orv_m_ceilf
#define floorf __orv_m_floorf
#define fabsf __orv_m_fabsf
#define expf __orv_m_expf
#define logf __orv_m_logf
#define log10f __orv_m_log10f
#define sqrtf __orv_m_sqrtf
#define sinf __orv_m_sinf
#define cosf __orv_m_cosf
#define tanf __orv_m_tanf
#define asinf __orv_m_asinf
#define acosf __orv_m_acosf
#define atanf __orv_m_atanf
#define sinhf __orv_m_sinhf
#define coshf __orv_m_coshf
#define tanhf __orv_m_tanhf
#define fmodf __orv_m_fmodf
#define powf __orv_m_powf
#define atan2f __orv_m_atan2f
#define modff __orv_m_modff
#else
#define _ORV_MFN(name) name
#endif

_ORV_BEGIN

/* The error values of the family and its limits, as bit patterns. */
extern double __DOUBLE_INF;
extern double __DOUBLE_MAX;
extern double __DOUBLE_NAN;
extern float __FLOAT_INF;
extern float __FLOAT_MAX;
extern float __FLOAT_NAN;

#define HUGE_VAL __DOUBLE_INF

double _ORV_MFN(ceil)(double x);
double _ORV_MFN(floor)(double x);
double _ORV_MFN(fabs)(double x);
double _ORV_MFN(exp)(double x);
double _ORV_MFN(log)(double x);
double _ORV_MFN(log10)(double x);
double _ORV_MFN(sqrt)(double x);
double _ORV_MFN(sin)(double x);
double _ORV_MFN(cos)(double x);
double _ORV_MFN(tan)(double x);
double _ORV_MFN(asin)(double x);
double _ORV_MFN(acos)(double x);
double _ORV_MFN(atan)(double x);
double _ORV_MFN(sinh)(double x);
double _ORV_MFN(cosh)(double x);
double _ORV_MFN(tanh)(double x);
double _ORV_MFN(fmod)(double x, double y);
double _ORV_MFN(pow)(double x, double y);
double _ORV_MFN(atan2)(double y, double x);
double _ORV_MFN(frexp)(double x, int *e);
double _ORV_MFN(ldexp)(double x, int n);
double _ORV_MFN(modf)(double x, double *ip);
int _ORV_MFN(isnan)(double x);
double _ORV_MFN(copysign)(double x, double y);
double _ORV_MFN(rint)(double x);

/* Helpers that compiled code and the other number families call. */
double __sincos(double x, int flag);     /* 0: sine, else cosine */
double __asinacos(double x, int flag);   /* 0: arcsine, 1: arccosine */
double __dint(double x);                 /* truncation to an integral value */
float __aint(float x);
double __orvane_dtoi_c(double x, int n); /* x to the integer power n */
float __orvane_ftoi_c(float x, int n);

float _ORV_MFN(ceilf)(float x);
float _ORV_MFN(floorf)(float x);
float _ORV_MFN(fabsf)(float x);
float _ORV_MFN(expf)(float x);
float _ORV_MFN(logf)(float x);
float _ORV_MFN(log10f)(float x);
float _ORV_MFN(sqrtf)(float x);
float _ORV_MFN(sinf)(float x);
float _ORV_MFN(cosf)(float x);
float _ORV_MFN(tanf)(float x);
float _ORV_MFN(asinf)(float x);
float _ORV_MFN(acosf)(float x);
float _ORV_MFN(atanf)(float x);
float _ORV_MFN(sinhf)(float x);
float _ORV_MFN(coshf)(float x);
float _ORV_MFN(tanhf)(float x);
float _ORV_MFN(fmodf)(float x, float y);
float _ORV_MFN(powf)(float x, float y);
float _ORV_MFN(atan2f)(float y, float x);
float _ORV_MFN(modff)(float x, float *ip);

float __sinfcosf_c(float x, int flag);   /* 0: sine, else cosine */
float __asinfacosf(float x, int flag);   /* 0: arcsine, 1: arccosine */

_ORV_END

#endif

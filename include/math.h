#ifndef _ORV_MATH_H
#define _ORV_MATH_H

#include "_orv_defs.h"

/* In a C program built by GCC each name is given an alias that the
   compiler does not know as a built-in, while the symbol stays the
   library's own: otherwise the compiler folds constant calls with its own
   arithmetic and opens sqrt inline with FSQRT, and the program would not
   see this library's results. Define _ORV_MATH_BUILTINS to keep them. */
#if defined(__GNUC__) && !defined(__cplusplus) && !defined(_ORV_MATH_BUILTINS)
#define _ORV_ASM(name) __asm__(#name)
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
#define _ORV_ASM(name)
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

double ceil(double x) _ORV_ASM(ceil);
double floor(double x) _ORV_ASM(floor);
double fabs(double x) _ORV_ASM(fabs);
double exp(double x) _ORV_ASM(exp);
double log(double x) _ORV_ASM(log);
double log10(double x) _ORV_ASM(log10);
double sqrt(double x) _ORV_ASM(sqrt);
double sin(double x) _ORV_ASM(sin);
double cos(double x) _ORV_ASM(cos);
double tan(double x) _ORV_ASM(tan);
double asin(double x) _ORV_ASM(asin);
double acos(double x) _ORV_ASM(acos);
double atan(double x) _ORV_ASM(atan);
double sinh(double x) _ORV_ASM(sinh);
double cosh(double x) _ORV_ASM(cosh);
double tanh(double x) _ORV_ASM(tanh);
double fmod(double x, double y) _ORV_ASM(fmod);
double pow(double x, double y) _ORV_ASM(pow);
double atan2(double y, double x) _ORV_ASM(atan2);
double frexp(double x, int *e) _ORV_ASM(frexp);
double ldexp(double x, int n) _ORV_ASM(ldexp);
double modf(double x, double *ip) _ORV_ASM(modf);
int isnan(double x) _ORV_ASM(isnan);
double copysign(double x, double y) _ORV_ASM(copysign);
double rint(double x) _ORV_ASM(rint);

/* Helpers that compiled code and the other number families call. */
double __sincos(double x, int flag);     /* 0: sine, else cosine */
double __asinacos(double x, int flag);   /* 0: arcsine, 1: arccosine */
double __dint(double x);                 /* truncation to an integral value */
float __aint(float x);
double __orvane_dtoi_c(double x, int n); /* x to the integer power n */
float __orvane_ftoi_c(float x, int n);

float ceilf(float x) _ORV_ASM(ceilf);
float floorf(float x) _ORV_ASM(floorf);
float fabsf(float x) _ORV_ASM(fabsf);
float expf(float x) _ORV_ASM(expf);
float logf(float x) _ORV_ASM(logf);
float log10f(float x) _ORV_ASM(log10f);
float sqrtf(float x) _ORV_ASM(sqrtf);
float sinf(float x) _ORV_ASM(sinf);
float cosf(float x) _ORV_ASM(cosf);
float tanf(float x) _ORV_ASM(tanf);
float asinf(float x) _ORV_ASM(asinf);
float acosf(float x) _ORV_ASM(acosf);
float atanf(float x) _ORV_ASM(atanf);
float sinhf(float x) _ORV_ASM(sinhf);
float coshf(float x) _ORV_ASM(coshf);
float tanhf(float x) _ORV_ASM(tanhf);
float fmodf(float x, float y) _ORV_ASM(fmodf);
float powf(float x, float y) _ORV_ASM(powf);
float atan2f(float y, float x) _ORV_ASM(atan2f);
float modff(float x, float *ip) _ORV_ASM(modff);

float __sinfcosf_c(float x, int flag);   /* 0: sine, else cosine */
float __asinfacosf(float x, int flag);   /* 0: arcsine, 1: arccosine */

_ORV_END

#include "_orv_mathl.h"

#endif

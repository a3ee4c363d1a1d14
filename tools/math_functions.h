/* The functions whose accuracy is measured, by number: shared by the
   accuracy tool and the accuracy test, built against liborv. The numbers
   are those tools/math_refs.c writes. */
#ifndef ORV_TOOLS_MATH_FUNCTIONS_H
#define ORV_TOOLS_MATH_FUNCTIONS_H

#include <math.h>

enum { F_EXP, F_LOG, F_LOG10, F_SQRT, F_SIN, F_COS, F_TAN, F_ASIN, F_ACOS, F_ATAN,
       F_SINH, F_COSH, F_TANH, F_ATAN2, F_POW, F_COUNT };

static double call_double(int fn, double x, double y) {
    switch (fn) {
    case F_EXP: return exp(x);
    case F_LOG: return log(x);
    case F_LOG10: return log10(x);
    case F_SQRT: return sqrt(x);
    case F_SIN: return sin(x);
    case F_COS: return cos(x);
    case F_TAN: return tan(x);
    case F_ASIN: return asin(x);
    case F_ACOS: return acos(x);
    case F_ATAN: return atan(x);
    case F_SINH: return sinh(x);
    case F_COSH: return cosh(x);
    case F_TANH: return tanh(x);
    case F_ATAN2: return atan2(x, y);
    default: return pow(x, y);
    }
}

static float call_float(int fn, float x, float y) {
    switch (fn) {
    case F_EXP: return expf(x);
    case F_LOG: return logf(x);
    case F_LOG10: return log10f(x);
    case F_SQRT: return sqrtf(x);
    case F_SIN: return sinf(x);
    case F_COS: return cosf(x);
    case F_TAN: return tanf(x);
    case F_ASIN: return asinf(x);
    case F_ACOS: return acosf(x);
    case F_ATAN: return atanf(x);
    case F_SINH: return sinhf(x);
    case F_COSH: return coshf(x);
    case F_TANH: return tanhf(x);
    case F_ATAN2: return atan2f(x, y);
    default: return powf(x, y);
    }
}

#endif

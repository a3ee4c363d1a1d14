/* The long double (quad) functions of the math header, kept apart so that
   math.h includes them as one block. */
#ifndef _ORV_MATHL_H
#define _ORV_MATHL_H

#include "quad.h"

_ORV_BEGIN

quad fabsl(quad x);
quad copysignl(quad x, quad y);
quad ceill(quad x);
quad floorl(quad x);
quad rintl(quad x);
int iceill(quad x);
int ifloorl(quad x);
quad qint(quad x);
quad fmodl(quad a, quad b);
quad ldexpl(quad x, int n);
quad frexpl(quad x, int *e);
quad sqrtl(quad x);
quad hypotl(quad x, quad y);
quad __orvane_qprod_c(double a, double b);
/* c[0] x^n + c[1] x^(n-1) + ... + c[n] */
quad _orvane_polyN(quad x, quad *c, int n);
/* x^n + c[0] x^(n-1) + ... + c[n-1] */
quad _orvane_polyD(quad x, quad *c, int n);

quad expl(quad x);
quad logl(quad x);
quad log10l(quad x);
quad powl(quad x, quad y);

quad sinl(quad x);
quad cosl(quad x);
quad tanl(quad x);
quad asinl(quad x);
quad acosl(quad x);
quad atanl(quad x);
quad atan2l(quad y, quad x);
quad sinhl(quad x);
quad coshl(quad x);
quad tanhl(quad x);

_ORV_END

#endif

/* The float family at its edges, where it differs from the double one. */
#include <float.h>

#include "mathcheck.h"

#define PI_F 0x40490FDBU      /* 3.1415927f */
#define HALF_PI_F 0x3FC90FDBU /* 1.5707964f */

static void rounding(void) {
    float ip;
    t_section("aint, floorf, ceilf, modff, fmodf, fabsf");
    CHECK_F(__aint(-0.5f), 0, OK);
    CHECK_F(__aint(-2.75f), BF(-2.0f), OK);
    CHECK_F(__aint(8388607.5f), BF(8388607.0f), OK);
    CHECK_F(__aint(F(FNINF)), FNINF, OK);
    CHECK_F(floorf(-0.0f), 0, OK);
    CHECK_F(ceilf(-0.0f), 0, OK);
    CHECK_F(ceilf(-0.5f), 0x80000000U, OK);
    CHECK_F(floorf(-0.3f), BF(-1.0f), OK);
    CHECK_F(ceilf(2.25f), BF(3.0f), OK);
    CHECK_F(ceilf(__FLOAT_NAN), 0, OK);
    CHECK_F(floorf(__FLOAT_NAN), 0, OK);
    CHECK_F(modff(-3.25f, &ip), BF(-0.25f), OK);
    CHECK_HEX(BF(ip), BF(-3.0f));
    CHECK_F(fmodf(5.5f, 2.0f), BF(1.5f), OK);
    CHECK_F(fmodf(1.0f, 0.0f), FNAN, EDOM);
    CHECK_F(fmodf(1.0f, __FLOAT_NAN), FNAN, EDOM);
    CHECK_F(fabsf(-0.0f), 0, OK);
}

static void exponentials(void) {
    t_section("expf, logf, sqrtf");
    CHECK_F(expf(88.03f), FPINF, ERANGE);
    CHECK(expf(88.0f) < F(FPINF));
    CHECK_F(expf(-88.0f), 0, OK);
    CHECK_F(expf(__FLOAT_NAN), FPINF, ERANGE);
    CHECK_F(expf(0.0f), BF(1.0f), OK);
    CHECK_F(logf(1.0f), 0, OK);
    CHECK_F(logf(-0.0f), FNINF, ERANGE);
    CHECK_F(logf(-1.0f), FNAN, EDOM);
    CHECK_F(logf(__FLOAT_NAN), FNAN, EDOM);
    CHECK_F(logf(F(FPINF)), FPINF, OK);
    {   /* 2^-149 reads as (1 + 2^-23) 2^-127: about -127 ln 2 */
        float r = logf(F(1));
        CHECK(r > -88.0297f && r < -88.0296f);
    }
    CHECK_F(log10f(0.0f), FNINF, ERANGE);
    CHECK_F(log10f(100.0f), BF(2.0f), OK);
    /* sqrtf works on [0.5, 1) with the exponent apart: the even and odd
       exponent branches */
    CHECK_F(sqrtf(2.0f), BF(1.4142135f), OK);
    CHECK_F(sqrtf(8.0f), BF(2.828427f), OK);
    CHECK_F(sqrtf(0.5f), BF(0.70710677f), OK);
    CHECK_F(sqrtf(4.0f), BF(2.0f), OK);
    CHECK_F(sqrtf(F(FPINF)), FPINF, OK);  /* unlike sqrt */
    CHECK_F(sqrtf(-0.0f), 0x80000000U, OK);
    CHECK_F(sqrtf(F(0x7FC01234U)), 0x7FC01234U, OK);
    CHECK_F(sqrtf(-1.0f), FNAN, EDOM);
    CHECK_F(sqrtf(F(FNINF)), FNAN, EDOM);
}

static void trigonometric(void) {
    t_section("sinf, cosf, tanf");
    CHECK_F(sinf(8192.5f), 0, OK);
    CHECK(sinf(8192.0f) != 0);
    CHECK_F(cosf(8191.0f), 0, OK);       /* 8191 + pi/2 is above the limit */
    CHECK(cosf(8190.0f) != 0);
    CHECK_F(cosf(0.0f), BF(1.0f), OK);
    CHECK_F(sinf(-0.0f), 0, OK);
    CHECK_F(sinf(__FLOAT_NAN), 0, OK);
    CHECK_F(__sinfcosf_c(0.5f, 0), BF(sinf(0.5f)), OK);
    CHECK_F(__sinfcosf_c(0.5f, 3), BF(cosf(0.5f)), OK);
    CHECK_F(tanf(12868.0f), 0, OK);
    CHECK(tanf(12867.0f) != 0);
    CHECK_F(tanf(__FLOAT_NAN), 0, OK);

    t_section("asinf, acosf, atanf, atan2f");
    CHECK_F(asinf(1.0f), HALF_PI_F, OK);
    CHECK_F(acosf(1.0f), 0, OK);
    CHECK_F(acosf(-1.0f), PI_F, OK);
    CHECK_F(asinf(2.0f), FNAN, EDOM);
    CHECK_F(acosf(F(FNINF)), FNAN, EDOM);
    CHECK_F(__asinfacosf(0.25f, 1), BF(acosf(0.25f)), OK);
    CHECK_F(atanf(F(FPINF)), HALF_PI_F, OK);
    CHECK_F(atanf(F(FNINF)), HALF_PI_F | 0x80000000U, OK);
    CHECK_F(atan2f(-0.0f, -1.0f), PI_F | 0x80000000U, OK);
    CHECK_F(atan2f(0.0f, -1.0f), PI_F, OK);
    CHECK_F(atan2f(1.0f, __FLOAT_NAN), HALF_PI_F, OK);
    CHECK_F(atan2f(-0.0f, 0.0f), 0, EDOM);
    CHECK_F(atan2f(1.0f, 1.0f), BF(0.7853982f), OK);
}

static void hyperbolic(void) {
    t_section("sinhf, coshf, tanhf");
    CHECK_F(sinhf(__FLOAT_NAN), FPINF, ERANGE);
    CHECK_F(sinhf(89.0f), FPINF, ERANGE);
    CHECK_F(sinhf(-89.0f), FNINF, ERANGE);
    CHECK_F(coshf(F(FNINF)), FPINF, ERANGE);
    CHECK_F(sinhf(1e-4f), BF(1e-4f), OK);
    CHECK_F(tanhf(__FLOAT_NAN), BF(-1.0f), OK);
    CHECK_F(tanhf(9.5f), BF(1.0f), OK);
    CHECK_F(tanhf(-0.0f), 0, OK);
}

static void powers(void) {
    t_section("powf");
    CHECK_F(powf(-8.0f, 3.0f), BF(-512.0f), OK);
    CHECK_F(powf(2.0f, 10.0f), BF(1024.0f), OK);
    CHECK_F(powf(2.0f, -1.0f), BF(0.5f), OK);
    CHECK_F(powf(-2.0f, 2147483648.0f), 0, OK); /* |x|, then +0 */
    CHECK_F(powf(2.0f, 0.5f), BF(1.4142135f), OK);
    CHECK_F(powf(10.0f, 39.5f), FPINF, OK);
    CHECK(powf(10.0f, 38.5f) < F(FPINF));
    CHECK_F(powf(10.0f, -45.5f), 0, OK);
    CHECK_F(powf(__FLOAT_NAN, 0.0f), BF(1.0f), OK);
    CHECK_F(powf(3.0f, __FLOAT_NAN), BF(1.0f), OK);
    CHECK_F(powf(0.0f, 0.5f), 0, OK);
    CHECK_F(powf(0.0f, -0.5f), FPINF, EDOM);
    CHECK_F(powf(0.0f, -1.0f), FPINF, OK);
    CHECK_F(powf(-8.0f, 0.5f), FNAN, EDOM);
    CHECK_F(powf(-2.0f, 3.5e7f), FPINF, OK);  /* integral and even: no EDOM */
}

/* The shorter roads of powf, sqrtf, expf and logf against the steps, at
   the edges where they hand over. */
static void ordinary_ranges(void) {
    t_section("powf, sqrtf, expf, logf edges");
    CHECK_F(powf(F(0x3FB504F3), 3.5f), 0x405744FC, OK);   /* g = A1[8] */
    CHECK_F(powf(F(0x3FB504F2), 3.5f), 0x405744F8, OK);
    CHECK_F(powf(1.0001f, 32767.5f), 0x41D3FCB1, OK);
    CHECK_F(powf(1.0001f, 49152.0f), 0x4308486B, OK);
    CHECK_F(powf(F(3), 0.25f), 0x2F9837F1, OK);           /* denormal x */
    CHECK_F(powf(2.0f, 127.99f), FPINF, OK);
    CHECK_F(powf(2.0f, -125.99f), 0, OK);
    CHECK_F(sqrtf(F(3)), 0x1FB504F5, OK);                 /* denormal, e = -126 */
    CHECK_F(sqrtf(FLT_MAX), 0x5F800000, OK);
    CHECK_F(sqrtf(FLT_MIN), 0x20000000, OK);
    CHECK_F(sqrtf(3.0f), 0x3FDDB3D7, OK);
    /* the result's exponent field reaches 0 near -86.6 */
    CHECK_F(expf(-86.0f), 0x01739362, OK);
    CHECK_F(expf(-86.2f), 0x01476C6D, OK);
    CHECK_F(expf(-86.3f), 0x013471DD, OK);
    CHECK_F(expf(-86.5f), 0x0113BC74, OK);
    CHECK_F(expf(-87.0f), 0x00B33687, OK);
    CHECK_F(expf(-87.4f), 0x00704280, OK);   /* r below 0.5: the field is 0 already */
    CHECK_F(expf(-87.5f), 0x00596577, OK);
    CHECK_F(expf(88.0f), 0x7EF882B7, OK);
    CHECK_F(logf(F(0x3EE48000)), 0xBF4E89AF, OK);         /* f = 2^-8 stays */
    CHECK_F(logf(F(0x3FDD8000)), 0x3F0C6371, OK);
    CHECK_F(logf(F(0x3FC08000)), 0x3ED0EE03, OK);
    CHECK_F(logf(F(0x3FC08001)), 0x3ED0EE06, OK);
    CHECK_F(logf(F(3)), 0xC2B00F34, OK);
    CHECK_F(logf(FLT_MAX), 0x42B17218, OK);
}

int main(void) {
    rounding();
    exponentials();
    trigonometric();
    hyperbolic();
    powers();
    ordinary_ranges();
    return t_finish();
}

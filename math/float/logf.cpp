// As log, on 8-bit exponent fields with shorter kernels.
#include "math/float/tables.h"
#include "include/math.h"
#include "math/fp.h"
#include "runtime/export.h"

using namespace orv::m;

namespace {

constexpr double F(float v) { return v; }

float logf_near_one(double x) {
    const double fd = x - 1.0;
    const float f = to_float(fd);
    const double g = 1.0 / (f + 2.0);
    const float u = to_float(2.0 * f * g);
    const double v = static_cast<double>(u) * u;
    const double q = u * v * (F(0.01251235f) * v + F(0.08333332f));
    const double u1 = from_fbits(fbits(u) & ~0xFFFu);
    const double f1 = from_fbits(fbits(f) & ~0xFFFu);
    const double f2 = fd - f1;
    const double u2 = ((2.0 * (fd - u1) - u1 * f1) - u1 * f2) * g;
    return to_float((u1 + u2) + q);
}

}  // namespace

extern "C" ORV_EXPORT float logf(float xf) {
    const double x = xf;
    if (!gt(x, 0.0)) {
        if (lt(x, 0.0)) return static_cast<float>(domain_error(kFloatNan));
        return static_cast<float>(range_error(-kFloatInf));
    }
    if (lt(from_fbits(0x3F707D60), x) && lt(x, from_fbits(0x3F88415B))) return logf_near_one(x);
    const u32 bits = fbits(xf);
    const int m = static_cast<int>(bits >> 23) - 127;
    if (m == 0x80) return kFloatInf;
    // Y is x with the exponent field 0x7F; j its top 7 fraction bits and
    // f = Y - F, exact, the fraction below them. Above 2^-8 F moves up to
    // the next multiple of 1/128 and f goes negative by 2^-7; a tie stays
    // below. Both on the integer 2^23 f, without a branch.
    Trips trips;
    const u32 low16 = bits & 0xFFFF;
    const u32 up = low16 > 0x8000;
    const int j = static_cast<int>(((bits >> 16) & 0x7F) + up);
    trips.n[0] = static_cast<i32>(low16) - static_cast<i32>(up << 16);
    const double f = fild(trips.n[0]) * 0x1p-23;
    trips.n[1] = m;
    const double md = fild(trips.n[1]);
    const double u = table(logf_inv, j) * f;
    const double a = md * table(logf_lead, 128) + table(logf_lead, j);
    const double b = md * table(logf_trail, 128) + table(logf_trail, j);
    const double q = u * u * (F(0.33333f) * u - F(0.500003f));
    return to_float(a + (u + (b + q)), trips.f[0]);
}

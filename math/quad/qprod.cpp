#include "include/_orv_mathl.h"
#include "math/quad/qdouble.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad __orvane_qprod_c(double a, double b) {
    // Dekker's product with a 21/32-bit split of a and a 21/21/11-bit split
    // of b, so that every partial product is exact at 53 bits.
    constexpr double C = 4294967297.0;  // 2^32 + 1
    const double limit = from_bits(0x7BEFFFFFFFFFFFFFull);  // just under 2^960
    bool scaled = false;
    if (gt(a, limit)) {
        a = ldexp_d(a, -64);
        scaled = true;
    } else if (gt(b, limit)) {
        b = ldexp_d(b, -64);
        scaled = true;
    }
    double p = C * a;
    double ah = p + (a - p);
    double al = a - ah;
    double q = C * b;
    double bh = q + (b - q);
    double bl = b - bh;
    double p2 = C * bl;
    double bm = p2 + (bl - p2);
    double bt = bl - bm;
    double z = a * b;
    double e = ah * bh - z;
    e = ah * bl + e;
    e = bh * al + e;
    e = bm * al + e;
    e = bt * al + e;
    quad r = make(z, e);
    return scaled ? ldexpl(r, 64) : r;
}

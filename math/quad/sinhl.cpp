#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

// (e^x - e^-x)/2 loses its leading bits near 0, where the Taylor series
// takes over.
extern "C" ORV_EXPORT quad sinhl(quad x) {
    if (eq(x.hi, 0.0)) return make(0.0, 0.0);  // a NaN too
    if (gt(qsubd(fabsl(x), 0.05).hi, 0.0)) {
        quad E = expl(x);
        return qmuld(qsub(E, qrdivd(1.0, E)), 0.5);
    }
    // Stops once a term falls below 2^-106 of the first.
    const double eps = absd(x.hi * from_bits(0x394FFFFFFFFFFFF9ull));
    quad sum = x, term = x, v = qmul(x, x);
    double k = 1;
    do {
        k += 2;
        term = qdivd(qmul(term, v), k * (k - 1));
        sum = qadd(sum, term);
    } while (gt(qsubd(fabsl(term), eps).hi, 0.0));
    return sum;
}

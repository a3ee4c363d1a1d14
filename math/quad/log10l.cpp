#include "math/quad/qkernel.h"
#include "runtime/export.h"

using namespace orv::qk;

extern "C" ORV_EXPORT quad log10l(quad x) {
    constexpr quad LOG10E = pair(0x3FDBCB7B1526E50E, 0x3C695355BAAAFAC8);  // 1/ln 10
    return qmul(logl(x), LOG10E);
}

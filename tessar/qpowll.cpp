#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qpowll(quad a, long long n) {
    auto m = static_cast<std::uint64_t>(n);
    if (n < 0) m = 0u - m;
    return dd::power(a, m, n < 0);
}

#include "include/quad.h"
#include "runtime/export.h"
#include "tessar/dd.h"

using namespace orv;

extern "C" ORV_EXPORT quad qpowi(quad a, int n) {
    // The magnitude as unsigned, so that INT_MIN has one.
    auto m = static_cast<std::uint32_t>(n);
    if (n < 0) m = 0u - m;
    return dd::power(a, m, n < 0);
}

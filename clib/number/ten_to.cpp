#include "runtime/export.h"

namespace {

constexpr double powers[9] = {1e1, 1e2, 1e4, 1e8, 1e16, 1e32, 1e64, 1e128, 1e256};

} // namespace

// Ten to the power, one table factor for each of the low nine bits; the
// rest are ignored. The product stays on the x87 stack, with its wide
// exponent range, until it is stored.
extern "C" ORV_EXPORT double __d_ten_to(unsigned power) {
    long double product = 1.0L;
    for (unsigned k = 0; k < 9; ++k)
        if (power & (1u << k)) product *= powers[k];
    return static_cast<double>(product);
}

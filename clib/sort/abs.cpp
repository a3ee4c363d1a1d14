#include "include/stdlib.h"
#include "runtime/export.h"

// The most negative value is its own negation here, in wrap-around
// arithmetic, with no trap.
extern "C" ORV_EXPORT int abs(int value) {
    return value >= 0 ? value : static_cast<int>(0u - static_cast<unsigned>(value));
}

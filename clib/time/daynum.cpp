#include "include/time.h"
#include "runtime/export.h"

// The weekday of 1 January by a congruence on the year before: century J
// and year of century K.
extern "C" ORV_EXPORT int _daynum_(int year) {
    unsigned y = static_cast<unsigned>(year) + 1899u;
    unsigned k = y % 100, j = y / 100;
    return static_cast<int>((k + k / 4 + j / 4 - (2 * j) % 7 + 36) % 7);
}

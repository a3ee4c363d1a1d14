#include "math/double/log.h"
#include "runtime/export.h"

using namespace orv::m;

extern "C" ORV_EXPORT double log10_words(arg64 x) __asm__("log10");

double log10_words(arg64 x) { return log_kernel(x) * from_bits(0x3FDBCB7B1526E50E); }

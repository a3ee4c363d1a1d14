#include "include/stdlib.h"
#include "clib/number/decimal.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT int atoi(const char *text) { return orv::inttext::read_decimal(text); }

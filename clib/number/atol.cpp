#include "include/stdlib.h"
#include "clib/number/decimal.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT long atol(const char *text) { return orv::inttext::read_decimal(text); }

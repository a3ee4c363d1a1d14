#include "include/ctype.h"
#include "runtime/export.h"

// Neither reads the table.
extern "C" ORV_EXPORT int(isascii)(int c) { return static_cast<unsigned>(c) < 128 ? 1 : 0; }
extern "C" ORV_EXPORT int(toascii)(int c) { return c & 0x7F; }

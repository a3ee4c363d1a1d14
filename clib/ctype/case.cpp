#include "include/ctype.h"
#include "clib/ctype/table.h"
#include "runtime/export.h"

// Only letters change; EOF and every other value come back as they are.
extern "C" ORV_EXPORT int(tolower)(int c) { return orv::ctype::to_lower(c); }
extern "C" ORV_EXPORT int(toupper)(int c) { return orv::ctype::to_upper(c); }

#include "include/assert.h"
#include "clib/error/diag.h"
#include "runtime/export.h"

// The target of assert. Returns only if abort does.
extern "C" ORV_EXPORT void _gripe_(const char *file, int line, const char *text) {
    orv::diag::put_assertion(file, line, text);
    orv::diag::stop();
}

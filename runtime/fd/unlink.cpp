#include "include/io.h"
#include "runtime/fd/descriptor.h"

// Whatever the cause, a failed delete is reported as EACCES.
extern "C" ORV_EXPORT int _unlink(const char *path) {
    return DeleteFileA(path) ? 0 : orv::fail(EACCES);
}

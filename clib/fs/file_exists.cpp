#include "clib/fs/file_exists.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT int _orv_file_exists(const char *path) {
    return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
}

#include "clib/fs/file_exists.h"
#include "clib/fs/temp_names.h"
#include "include/stdio.h"
#include "include/stdlib.h"
#include "include/string.h"

namespace {
constinit std::uint16_t counter = 1;

// The directory's path for the name, or the bare name without one, in a
// heap block either way.
char *temp_path(const char *dir, const char *name) {
    return dir != nullptr ? orv::fs::join_path(dir, name) : strdup(name);
}
} // namespace

// The file goes away at fclose, which sees _IOTMP, not before.
extern "C" ORV_EXPORT FILE *tmpfile(void) {
    const char *dir = _orv_get_tmpdir();
    char name[orv::fs::name_size];
    char *path = nullptr;
    do {
        orv::fs::make_name(name, "tfl", counter);
        free(path);
        path = temp_path(dir, name);
        if (path == nullptr) return nullptr;
    } while (_orv_file_exists(path));
    FILE *f = fopen(path, "wb+");
    free(path);
    if (f != nullptr) f->_flag |= _IOTMP;
    return f;
}

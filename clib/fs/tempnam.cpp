#include "clib/fs/file_exists.h"
#include "clib/fs/temp_names.h"
#include "include/stdio.h"
#include "include/stdlib.h"

namespace {
constinit std::uint16_t counter = 1;
} // namespace

// An empty `dir` counts as none given, so that no name lands in the root.
extern "C" ORV_EXPORT char *tempnam(const char *dir, const char *prefix) {
    if (dir == nullptr || *dir == 0) dir = _orv_get_tmpdir();
    char name[orv::fs::name_size];
    char *path = nullptr;
    do {
        orv::fs::make_name(name, prefix ? prefix : "tpn", counter);
        if (dir == nullptr) return nullptr;  // no directory: no heap block to give
        free(path);
        path = orv::fs::join_path(dir, name);
        if (path == nullptr) return nullptr;
    } while (_orv_file_exists(path));
    return path;
}

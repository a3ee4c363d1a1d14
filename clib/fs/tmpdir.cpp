#include "clib/fs/temp_names.h"
#include "include/stdlib.h"
#include "platform/kernel32.h"

namespace {
// Allocated at first use and kept for the life of the process.
constinit char *directory = nullptr;
constinit DWORD directory_size = 1024;
} // namespace

extern "C" ORV_EXPORT char *_orv_get_tmpdir(void) {
    if (directory == nullptr && (directory = static_cast<char *>(malloc(directory_size))) == nullptr)
        return nullptr;
    DWORD needed = 0;
    do {
        if (needed > directory_size) {
            char *bigger = static_cast<char *>(realloc(directory, needed));
            if (bigger == nullptr) return nullptr;
            directory = bigger;
            directory_size = needed;
        }
        needed = GetTempPathA(directory_size, directory);
    } while (needed > directory_size);
    return needed == 0 ? nullptr : directory;
}

#include "clib/fs/status.h"

#include "clib/time/file_time.h"

#include <cstddef>

static_assert(sizeof(struct stat) == 36);
static_assert(offsetof(struct stat, st_ino) == 4 && offsetof(struct stat, st_mode) == 6 &&
              offsetof(struct stat, st_nlink) == 8 && offsetof(struct stat, st_uid) == 10 &&
              offsetof(struct stat, st_gid) == 12 && offsetof(struct stat, st_rdev) == 16 &&
              offsetof(struct stat, st_size) == 20 && offsetof(struct stat, st_atime) == 24 &&
              offsetof(struct stat, st_mtime) == 28 && offsetof(struct stat, st_ctime) == 32);

namespace orv::fs {

void clear_status(struct stat &s) {
    s = {};
    s.st_dev = -1;
    s.st_rdev = -1;
    s.st_nlink = 1;
}

unsigned short mode_of(DWORD attributes, bool execute) {
    unsigned owner = (attributes & FILE_ATTRIBUTE_READONLY) ? S_IREAD : S_IREAD | S_IWRITE;
    if (execute) owner |= S_IEXEC;
    unsigned type = (attributes & FILE_ATTRIBUTE_DIRECTORY) ? S_IFDIR : S_IFREG;
    return static_cast<unsigned short>(type | owner | owner >> 3 | owner >> 6);
}

bool convert_times(struct stat &s, const FILETIME &creation, const FILETIME &write,
                   const FILETIME &access) {
    bool a = ConvertTime(&creation, &s.st_ctime);
    bool b = ConvertTime(&write, &s.st_mtime);
    bool c = ConvertTime(&access, &s.st_atime);
    return a && b && c;
}

} // namespace orv::fs

#include "clib/time/file_time.h"
#include "include/errno.h"
#include "include/sys/utime.h"
#include "runtime/export.h"

#include <cstddef>

static_assert(sizeof(struct utimbuf) == 8 && offsetof(struct utimbuf, actime) == 0 &&
              offsetof(struct utimbuf, modtime) == 4);

namespace {

// Closes what _utime opened, on every way out.
struct Handles {
    HANDLE find = INVALID_HANDLE_VALUE, file = INVALID_HANDLE_VALUE;
    ~Handles() {
        if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
        if (find != INVALID_HANDLE_VALUE) FindClose(find);
    }
};

int failure(int code) {
    errno = code;
    return -1;
}

} // namespace

extern "C" ORV_EXPORT int _utime(const char *path, const struct utimbuf *times) {
    Handles h;
    WIN32_FIND_DATAA data;
    if (path == nullptr || *path == 0) return failure(ENOENT);
    h.find = FindFirstFileA(path, &data);
    if (h.find == INVALID_HANDLE_VALUE) return failure(ENOENT);
    if (data.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))
        return failure(EACCES);
    h.file = CreateFileA(path, GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h.file == INVALID_HANDLE_VALUE) return failure(EMFILE);
    struct utimbuf now;
    if (times == nullptr) {
        now.actime = now.modtime = time(nullptr);
        times = &now;
    }
    FILETIME write, access;
    if (!ConvertTimeInverse(&times->modtime, &write) ||
        !ConvertTimeInverse(&times->actime, &access))
        return failure(EINVAL);
    if (!SetFileTime(h.file, nullptr, &access, &write)) return failure(EINVAL);
    return 0;
}

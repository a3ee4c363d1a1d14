#include "clib/fs/status.h"
#include "clib/time/file_time.h"
#include "include/errno.h"
#include "include/io.h"
#include "runtime/export.h"

namespace {

int disk_status(HANDLE h, struct stat &s) {
    BY_HANDLE_FILE_INFORMATION info;
    if (!GetFileInformationByHandle(h, &info)) return -1;
    s.st_mode = orv::fs::mode_of(info.dwFileAttributes, false);  // no name to judge by
    if (IsWinNT()) s.st_nlink = static_cast<short>(info.nNumberOfLinks);
    s.st_size = static_cast<long>(info.nFileSizeLow);
    return orv::fs::convert_times(s, info.ftCreationTime, info.ftLastWriteTime,
                                  info.ftLastAccessTime)
               ? 0
               : -1;
}

} // namespace

extern "C" ORV_EXPORT int _fstat(int fd, struct stat *buf) {
    long handle = _fd_to_handle(fd);
    if (handle == -1 || buf == nullptr) return -1;
    HANDLE h = reinterpret_cast<HANDLE>(handle);
    orv::fs::clear_status(*buf);
    switch (GetFileType(h)) {
    case FILE_TYPE_CHAR:
        buf->st_dev = buf->st_rdev = fd;
        buf->st_mode = S_IFCHR;
        return 0;
    case FILE_TYPE_PIPE: {
        buf->st_dev = buf->st_rdev = fd;
        buf->st_mode = S_IFIFO;
        DWORD waiting;
        if (PeekNamedPipe(h, nullptr, 0, nullptr, &waiting, nullptr))
            buf->st_size = static_cast<long>(waiting);
        return 0;
    }
    case FILE_TYPE_DISK: return disk_status(h, *buf);
    default: errno = EBADF; return -1;
    }
}

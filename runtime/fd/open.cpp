#include "include/fcntl.h"
#include "include/io.h"
#include "runtime/fd/descriptor.h"

namespace {

DWORD access_for(int oflag) {
    switch (oflag & 3) {
    case O_RDWR: return GENERIC_READ | GENERIC_WRITE;
    case O_WRONLY: return GENERIC_WRITE;
    default: return GENERIC_READ;
    }
}

// First match wins: a truncating open creates a missing file, as does any
// open with bit 0 of the access field; O_EXCL never stops a truncation.
DWORD disposition_for(int oflag) {
    if (oflag & O_TRUNC) return CREATE_ALWAYS;
    if (oflag & 1) return OPEN_ALWAYS;
    if ((oflag & O_CREAT) && !(oflag & O_EXCL)) return OPEN_ALWAYS;
    if (oflag & O_EXCL) return CREATE_NEW;
    return OPEN_EXISTING;
}

} // namespace

// A third argument (permission bits elsewhere) is accepted and ignored.
extern "C" ORV_EXPORT int _open(const char *path, int oflag, ...) {
    HANDLE h = CreateFileA(path, access_for(oflag), FILE_SHARE_READ | FILE_SHARE_WRITE,
                           nullptr, disposition_for(oflag), FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    if (h == INVALID_HANDLE_VALUE) return orv::fail(EIO);
    fd_map *node = __new_fd_map();
    if (node == nullptr) {
        CloseHandle(h);
        return orv::fail(EIO);
    }
    node->handle = h;
    if (oflag & O_APPEND) node->flags |= FD_APPEND;
    if (oflag & O_TEXT) node->flags |= FD_TEXT;
    return node->fd;
}

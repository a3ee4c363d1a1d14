#include "include/io.h"
#include "runtime/fd/descriptor.h"

// Only 32-bit positions exist. The descriptor is tested before whence.
extern "C" ORV_EXPORT long _lseek(int fd, long offset, int whence) {
    fd_map *node = __find_fd_map(fd);
    if (node == nullptr) return orv::fail(EBADF);
    if (whence < FILE_BEGIN || whence > FILE_END) return orv::fail(EINVAL);
    DWORD pos = SetFilePointer(node->handle, offset, nullptr, static_cast<DWORD>(whence));
    if (pos == INVALID_SET_FILE_POINTER) return orv::fail(EIO);
    return static_cast<long>(pos);
}

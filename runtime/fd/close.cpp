#include "include/io.h"
#include "runtime/fd/descriptor.h"

extern "C" ORV_EXPORT int _close(int fd) {
    fd_map *node = __find_fd_map(fd);
    if (node == nullptr) return orv::fail(EBADF);
    CloseHandle(node->handle);
    __free_fd_map(node);
    return 0;
}

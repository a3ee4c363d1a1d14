#include "include/io.h"
#include "runtime/fd/descriptor.h"

// Every character device counts, not only a console.
extern "C" ORV_EXPORT int _isatty(int fd) {
    fd_map *node = __find_fd_map(fd);
    return node != nullptr && GetFileType(node->handle) == FILE_TYPE_CHAR;
}

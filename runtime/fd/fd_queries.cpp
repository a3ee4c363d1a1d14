// Questions about a descriptor that start code and other layers ask.
#include "include/io.h"
#include "runtime/fd/descriptor.h"

extern "C" ORV_EXPORT int __file_open_textmode(int fd) {
    fd_map *node = __find_fd_map(fd);
    return node != nullptr && (node->flags & FD_TEXT) != 0;
}

// Line ends translated on output only; callers pass open descriptors.
extern "C" ORV_EXPORT void __set_write_text_flag(int fd) {
    if (fd_map *node = __find_fd_map(fd)) node->flags |= FD_WRITE_TEXT;
}

extern "C" ORV_EXPORT long _fd_to_handle(int fd) {
    fd_map *node = __find_fd_map(fd);
    return node != nullptr ? reinterpret_cast<long>(node->handle) : -1;
}

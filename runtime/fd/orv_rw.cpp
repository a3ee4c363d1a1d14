#include "include/io.h"
#include "runtime/export.h"

// The names the stream layers call.
extern "C" ORV_EXPORT int __orv_read(int fd, void *buffer, unsigned count) {
    return _read(fd, buffer, count);
}

extern "C" ORV_EXPORT int __orv_write(int fd, const void *buffer, unsigned count) {
    return _write(fd, buffer, count);
}

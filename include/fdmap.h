/* The descriptor map, for start code that registers descriptors 0, 1, 2. */
#ifndef _ORV_FDMAP_H
#define _ORV_FDMAP_H

#include "_orv_defs.h"

_ORV_BEGIN

struct fd_map {
    struct fd_map *next;
    void *handle;
    int fd;
    unsigned flags;
};

#define FD_APPEND 1
#define FD_TEXT 2
#define FD_WRITE_TEXT 4

struct fd_map *__find_fd_map(int fd);
struct fd_map *__new_fd_map(void);

_ORV_END

#endif

#ifndef _ORV_ERRNO_H
#define _ORV_ERRNO_H

#include "_orv_defs.h"

_ORV_BEGIN
extern int errno;
_ORV_END

#define EDOM 1
#define ERANGE 2
#define EBADF 3
#define EIO 4
#define EINVAL 5
#define EACCES 6
#define EMFILE 7
#define ENOENT 8

#endif

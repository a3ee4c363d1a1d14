#ifndef _ORV_SYS_STAT_H
#define _ORV_SYS_STAT_H

#include "../time.h"

/* The status record: the platform has no user ids, inode numbers or
   permission bits of its own, so those fields are 0 or made up. */
struct stat {
    long st_dev;            /* drive number (0 for A:), descriptor, or -1 */
    unsigned short st_ino;  /* 0 */
    unsigned short st_mode;
    short st_nlink;
    short st_uid;           /* 0 */
    short st_gid;           /* 0 */
    long st_rdev;           /* the same as st_dev */
    long st_size;           /* low 32 bits of the size */
    time_t st_atime;
    time_t st_mtime;
    time_t st_ctime;        /* creation */
};

#define S_IFMT 0xF000
#define S_IFDIR 0x4000
#define S_IFREG 0x8000
#define S_IFCHR 0x2000
#define S_IFIFO 0x1000
#define S_IREAD 0x100
#define S_IWRITE 0x80
#define S_IEXEC 0x40

_ORV_BEGIN

int _stat(const char *path, struct stat *buf);
int _fstat(int fd, struct stat *buf);

_ORV_END

#endif

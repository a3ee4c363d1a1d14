/* The descriptor layer: small integer descriptors over kernel handles. */
#ifndef _ORV_IO_H
#define _ORV_IO_H

#include "_orv_defs.h"

_ORV_BEGIN

int _open(const char *path, int oflag, ...);
int _close(int fd);
int _read(int fd, void *buffer, unsigned count);
int _write(int fd, const void *buffer, unsigned count);
long _lseek(int fd, long offset, int whence);
int _isatty(int fd);
int _link(const char *old_name, const char *new_name);
int _unlink(const char *path);

int __orv_read(int fd, void *buffer, unsigned count);
int __orv_write(int fd, const void *buffer, unsigned count);
int __file_open_textmode(int fd);
void __set_write_text_flag(int fd);
long _fd_to_handle(int fd);

_ORV_END

#endif

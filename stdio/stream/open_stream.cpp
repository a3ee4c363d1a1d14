#include "include/errno.h"
#include "include/fcntl.h"
#include "include/io.h"
#include "include/stdlib.h"
#include "include/string.h"
#include "stdio/stream/stream.h"

namespace orv::stdio {

FILE *fail_open(int code) {
    errno = code;
    return nullptr;
}

namespace {

struct Mode {
    int oflag;             // -1: the mode string is bad
    unsigned short flag;
};

// The first letter picks the access, then any run of 'b' and '+'.
Mode parse_mode(const char *mode) {
    bool update = false, binary = false;
    for (const char *p = mode + (*mode ? 1 : 0); *p; ++p) {
        if (*p == '+') update = true;
        else if (*p == 'b') binary = true;
        else return {-1, 0};
    }
    int access;
    switch (*mode) {
    case 'r': access = update ? O_RDWR : O_RDONLY; break;
    case 'w': access = (update ? O_RDWR : O_WRONLY) | O_TRUNC | O_CREAT; break;
    case 'a': access = (update ? O_RDWR : O_WRONLY) | O_APPEND | O_CREAT; break;
    default: return {-1, 0};
    }
    unsigned short flag = update ? (_IOOPENED | _IORW) : *mode == 'r' ? (_IOOPENED | _IOREAD) : (_IOOPENED | _IOWRT);
    return {access | (binary ? O_BINARY : O_TEXT), flag};
}

FILE *free_record() {
    for (FILE *s = _orviob; s < _orviob + stream_count; ++s)
        if (s->_flag == 0) return s;
    return nullptr;
}

// A character device is unbuffered; anything else gets a heap buffer of
// BUFSIZ, or the one-byte buffer when the heap has none to give.
void give_buffer(FILE *s, int fd) {
    unsigned char *heap = _isatty(fd) ? nullptr : static_cast<unsigned char *>(malloc(BUFSIZ));
    if (heap != nullptr) {
        s->_base = heap;
        s->_bufsiz = BUFSIZ;
    } else {
        s->_flag |= _IONBF;
        s->_base = onechar(s);
        s->_bufsiz = 1;
    }
    aux(s)._limit = s->_base + s->_bufsiz;
}

} // namespace

} // namespace orv::stdio

using namespace orv::stdio;

extern "C" FILE *__open_stream(const char *path, const char *mode, int fd, FILE *stream) {
    Mode m = parse_mode(mode);
    if (m.oflag < 0) return fail_open(EINVAL);
    if (fd == no_descriptor) fd = _open(path, m.oflag);
    if (*mode == 'a' && fd != -1 && _lseek(fd, 0, SEEK_END) < 0) fd = -1;
    if (fd == -1) return fail_open(EACCES);
    FILE *s = stream != nullptr ? stream : free_record();
    if (s == nullptr) return fail_open(EMFILE);
    s->_flag = m.flag;
    give_buffer(s, fd);
    s->_ptr = s->_base;
    aux(s)._end = s->_base;
    aux(s)._name = strdup(path);
    s->_file = fd;
    s->_cnt = 0;
    return s;
}

#include "include/errno.h"
#include "include/io.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// Stores c when the inline step has run out, and writes the buffer out
// when it is full, or at a line end of a line-buffered stream.
extern "C" ORV_EXPORT int _flsbuf(int c, FILE *s) {
    _auxiobuf &a = aux(s);
    if (!(s->_flag & for_output) || a._end > s->_base) {
        s->_flag |= _IOERR;
        errno = EBADF;
        return EOF;
    }
    // A write that failed leaves its bytes in the buffer; once they fill it,
    // there is no room for c, and storing it would go past the buffer.
    if (s->_ptr >= a._limit) {
        s->_flag |= _IOERR;
        errno = EIO;
        return EOF;
    }
    *s->_ptr++ = static_cast<unsigned char>(c);
    s->_flag = static_cast<unsigned short>((s->_flag & ~_IOREAD) | _IOWRT);
    bool line = s->_flag & _IOLBF;
    if (s->_ptr >= a._limit || (line && c == '\n')) {
        // Only the sign counts: a short write goes unnoticed.
        if (__orv_write(s->_file, s->_base, static_cast<unsigned>(s->_ptr - s->_base)) < 0) {
            s->_flag |= _IOERR;
            errno = EIO;
            return EOF;
        }
        s->_ptr = s->_base;
    }
    // The count that brings the buffer's last byte back here.
    if (line) s->_cnt = 0;
    else s->_cnt = s->_bufsiz - 1 - (s->_ptr - s->_base == 1 ? 1 : 0);
    return c;
}

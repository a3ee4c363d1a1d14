#include "include/errno.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// Pushed-back bytes grow down from the top of an empty buffer. A push with
// no room below _ptr is refused rather than stored outside the buffer.
extern "C" ORV_EXPORT int ungetc(int c, FILE *s) {
    _auxiobuf &a = aux(s);
    bool allowed = (s->_flag & for_input) && !(s->_flag & _IOWRT) &&
                   (a._end != s->_base || !(s->_ptr > s->_base));
    if (!allowed) {
        errno = EBADF;
        return EOF;
    }
    if (c == EOF) return EOF;
    if (s->_base == a._end) {
        s->_ptr = a._end = s->_base + s->_bufsiz;
        s->_cnt = 0;
    }
    if (s->_ptr <= s->_base) return EOF;
    s->_flag = static_cast<unsigned short>(s->_flag & ~_IOEOF);
    *--s->_ptr = static_cast<unsigned char>(c);
    ++s->_cnt;
    return c;
}

#include "include/errno.h"
#include "include/io.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// Refills the buffer when the inline step has run out; _cnt is already
// below 0.
extern "C" ORV_EXPORT int _filbuf(FILE *s) {
    _auxiobuf &a = aux(s);
    if (s->_flag & _IOWRT) {
        s->_flag |= _IOERR;
        return EOF;
    }
    if (s->_flag & _IOEOF) return EOF;
    if (s->_ptr > a._end) return EOF;
    // A prompt gets out before input is awaited.
    if (s->_flag & (_IONBF | _IOLBF)) fflush(nullptr);
    s->_flag |= _IOREAD;
    int n = __orv_read(s->_file, s->_base, static_cast<unsigned>(s->_bufsiz));
    if (n > 0) {
        a._end = s->_base + n;
        s->_ptr = s->_base + 1;
        s->_cnt = n - 1;
        return *s->_base;
    }
    if (n < 0) {
        errno = EIO;
        s->_flag |= _IOERR;
    }
    s->_flag |= _IOEOF;
    s->_ptr = a._end = s->_base;
    s->_cnt = 0;
    return EOF;
}

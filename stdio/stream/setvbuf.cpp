#include "include/stdlib.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// Accepted only while the buffer is unused: before the first transfer or
// right after a flush.
extern "C" ORV_EXPORT int setvbuf(FILE *s, char *buffer, int mode, size_t size) {
    if (!in_array(s)) return -1;
    _auxiobuf &a = aux(s);
    if (a._end != s->_base || s->_ptr != s->_base) return -1;
    unsigned char *area = reinterpret_cast<unsigned char *>(buffer);
    if (mode == _IONBF) {
        area = onechar(s);
        size = 1;
    } else if ((mode != _IOFBF && mode != _IOLBF) || size > 0x10000) {
        return -1;
    }
    if (owns_buffer(s)) free(s->_base);
    int result = 0;
    if (area != nullptr) {
        s->_flag |= _IOUSERBUF;
    } else if ((area = static_cast<unsigned char *>(malloc(size))) != nullptr) {
        s->_flag = static_cast<unsigned short>(s->_flag & ~_IOUSERBUF);
    } else {
        // No heap: unbuffered, still usable, but the call reports failure.
        mode = _IONBF;
        area = onechar(s);
        size = 1;
        s->_flag |= _IOUSERBUF;
        result = -1;
    }
    s->_flag = static_cast<unsigned short>((s->_flag & ~(_IONBF | _IOLBF)) | mode);
    s->_base = s->_ptr = a._end = area;
    a._limit = area + size;
    s->_bufsiz = static_cast<int>(size);
    s->_cnt = 0;
    return result;
}

extern "C" ORV_EXPORT void setbuf(FILE *s, char *buffer) {
    setvbuf(s, buffer, buffer != nullptr ? _IOFBF : _IONBF, BUFSIZ);
}

#include "include/errno.h"
#include "include/io.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// Offsets are the file's bytes: in text mode the CRs count.
extern "C" ORV_EXPORT int fseek(FILE *s, long offset, int whence) {
    if (fflush(s) != 0) return -1;
    if (static_cast<unsigned>(whence) > 2) return -1;
    if (_lseek(s->_file, offset, whence) < 0) return -1;
    s->_flag = static_cast<unsigned short>(s->_flag & ~_IOEOF);
    return 0;
}

// Not a pure read: pending output is written and the read-ahead dropped.
extern "C" ORV_EXPORT long ftell(FILE *s) {
    long position;
    if (fflush(s) != 0 || (position = _lseek(s->_file, 0, SEEK_CUR)) < 0) {
        errno = EIO;
        return -1;
    }
    return position + (s->_ptr - aux(s)._end);
}

extern "C" ORV_EXPORT int fgetpos(FILE *s, fpos_t *position) {
    *position = ftell(s);
    return *position == -1 ? -1 : 0;
}

extern "C" ORV_EXPORT int fsetpos(FILE *s, const fpos_t *position) {
    int result = fseek(s, *position, SEEK_SET);
    if (result != 0) errno = EIO;
    return result;
}

// The error flag stays; fseek takes only the end-of-file flag away.
extern "C" ORV_EXPORT int rewind(FILE *s) { return fseek(s, 0, SEEK_SET); }

#include "include/io.h"
#include "stdio/stream/stream.h"

extern "C" ORV_EXPORT void clearerr(FILE *s) {
    s->_flag = static_cast<unsigned short>(s->_flag & ~(_IOEOF | _IOERR));
}

extern "C" ORV_EXPORT int feof(FILE *s) { return s->_flag & _IOEOF; }
extern "C" ORV_EXPORT int ferror(FILE *s) { return s->_flag & _IOERR; }
extern "C" ORV_EXPORT int _fileno(FILE *s) { return s->_file; }

extern "C" ORV_EXPORT int remove(const char *path) { return _unlink(path); }

extern "C" ORV_EXPORT int rename(const char *old_name, const char *new_name) {
    return _link(old_name, new_name) != 0 ? -1 : 0;
}

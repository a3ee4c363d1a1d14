#include "include/errno.h"
#include "include/io.h"
#include "include/stdlib.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// _cnt, _ptr and _base stay as they were: only the flags free the record.
extern "C" ORV_EXPORT int fclose(FILE *s) {
    if (!in_array(s) || s->_flag == 0) {
        errno = EBADF;
        return -1;
    }
    _auxiobuf &a = aux(s);
    int result = 0;
    if (s->_ptr > a._end) result = fflush(s);
    if (_close(s->_file) != 0) result = -1;
    if (owns_buffer(s)) free(s->_base);
    if ((s->_flag & _IOTMP) && remove(a._name) != 0) result = -1;
    if (a._name != nullptr) {
        free(a._name);
        a._name = nullptr;
    }
    s->_flag = 0;
    return result;
}

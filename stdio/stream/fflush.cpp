#include "include/io.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

namespace {

// How far the descriptor stands ahead of the reader: in a text stream each
// LF still unread stood on the file as CR LF.
long read_ahead(FILE *s) {
    long distance = s->_cnt;
    if (__file_open_textmode(s->_file))
        for (const unsigned char *p = s->_ptr; p < s->_ptr + s->_cnt; ++p)
            if (*p == '\n') ++distance;
    return distance;
}

} // namespace

// Writes pending output, or steps the descriptor back over the read-ahead;
// either way the buffer is empty afterwards.
extern "C" int __stream_sync(FILE *s, int writing) {
    int result = 0;
    if (writing) {
        if (s->_ptr > s->_base &&
            __orv_write(s->_file, s->_base, static_cast<unsigned>(s->_ptr - s->_base)) < 0)
            result = -1;
    } else if (s->_cnt >= 1) {
        if (_lseek(s->_file, -read_ahead(s), SEEK_CUR) < 0) result = -1;
    }
    aux(s)._end = s->_base;
    if (s->_flag & _IORW) s->_flag = static_cast<unsigned short>(s->_flag & ~(_IOREAD | _IOWRT));
    s->_ptr = s->_base;
    s->_cnt = 0;
    return result;
}

// With null: every output stream without read data in hand.
extern "C" ORV_EXPORT int fflush(FILE *s) {
    if (s == nullptr) {
        int result = 0;
        for (FILE *r = _orviob; r < _orviob + stream_count; ++r)
            if ((r->_flag & for_output) && aux(r)._end == r->_base) {
                int one = __stream_sync(r, 1);
                if (result == 0) result = one;
            }
        return result;
    }
    if (!in_array(s) || s->_flag == 0) return -1;
    return __stream_sync(s, aux(s)._end == s->_base);
}

#include "include/string.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// fread and fwrite move bytes as the inline step would, one by one, with
// the same calls of _filbuf and _flsbuf at the same moments; only the runs
// the inline step would take without a call are copied as blocks.
namespace {

using Total = unsigned long long;

Total read_bytes(unsigned char *to, Total want, FILE *s) {
    Total done = 0;
    while (done < want) {
        if (s->_cnt > 0) {
            Total run = want - done < static_cast<Total>(s->_cnt) ? want - done : static_cast<Total>(s->_cnt);
            memcpy(to + done, s->_ptr, static_cast<size_t>(run));
            s->_ptr += run;
            s->_cnt -= static_cast<int>(run);
            done += run;
            continue;
        }
        int c = get(s);
        if (c == EOF) break;
        to[done++] = static_cast<unsigned char>(c);
    }
    return done;
}

Total write_bytes(const unsigned char *from, Total want, FILE *s) {
    Total done = 0;
    while (done < want) {
        if (s->_cnt > 0) {
            Total run = want - done < static_cast<Total>(s->_cnt) ? want - done : static_cast<Total>(s->_cnt);
            memcpy(s->_ptr, from + done, static_cast<size_t>(run));
            s->_ptr += run;
            s->_cnt -= static_cast<int>(run);
            done += run;
            continue;
        }
        if (put(from[done], s) == EOF) break;
        ++done;
    }
    return done;
}

} // namespace

// The bytes of a partial item are consumed and stay in the buffer.
extern "C" ORV_EXPORT size_t fread(void *buffer, size_t size, size_t count, FILE *s) {
    if (size == 0 || count == 0) return 0;
    Total done = read_bytes(static_cast<unsigned char *>(buffer), static_cast<Total>(size) * count, s);
    return static_cast<size_t>(done / size);
}

extern "C" ORV_EXPORT size_t fwrite(const void *buffer, size_t size, size_t count, FILE *s) {
    if (count == 0) return 0;
    if (size == 0) return count;
    Total done = write_bytes(static_cast<const unsigned char *>(buffer), static_cast<Total>(size) * count, s);
    return static_cast<size_t>(done / size);
}

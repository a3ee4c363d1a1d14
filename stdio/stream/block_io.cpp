#include "clib/string/block.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

namespace orv::stdio {

// What the inline step would take without a call: at most _cnt bytes.
inline std::size_t inline_part(std::size_t want, const FILE *s) {
    return s->_cnt <= 0 ? 0 : want < static_cast<std::size_t>(s->_cnt) ? want : static_cast<std::size_t>(s->_cnt);
}

std::size_t read_run(unsigned char *to, std::size_t want, FILE *s) {
    std::size_t done = 0;
    while (done < want) {
        if (std::size_t run = inline_part(want - done, s)) {
            block::copy_up(to + done, s->_ptr, run);
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

std::size_t write_run(const unsigned char *from, std::size_t want, FILE *s) {
    std::size_t done = 0;
    while (done < want) {
        if (std::size_t run = inline_part(want - done, s)) {
            block::copy_up(s->_ptr, from + done, run);
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

} // namespace orv::stdio

namespace {

// Items of any size. A request beyond 32 bits goes in runs that fit; the
// buffer cannot hold it, so only a failure or the end of file stops it.
template <class Run, class Byte>
std::size_t transfer(Byte *buffer, std::size_t size, std::size_t count, FILE *s, Run run) {
    std::size_t total;
    if (!__builtin_mul_overflow(size, count, &total)) {
        std::size_t got = run(buffer, total, s);
        return got == total ? count : got / size;
    }
    unsigned long long want = static_cast<unsigned long long>(size) * count, done = 0;
    while (done < want) {
        std::size_t piece = want - done > 0x40000000ULL ? 0x40000000u : static_cast<std::size_t>(want - done);
        std::size_t got = run(buffer + done, piece, s);
        done += got;
        if (got < piece) break;
    }
    return static_cast<std::size_t>(done / size);
}

} // namespace

// The bytes of a partial item are consumed and stay in the buffer.
extern "C" ORV_EXPORT size_t fread(void *buffer, size_t size, size_t count, FILE *s) {
    if (size == 0 || count == 0) return 0;
    return transfer(static_cast<unsigned char *>(buffer), size, count, s, read_run);
}

extern "C" ORV_EXPORT size_t fwrite(const void *buffer, size_t size, size_t count, FILE *s) {
    if (count == 0) return 0;
    if (size == 0) return count;
    return transfer(static_cast<const unsigned char *>(buffer), size, count, s, write_run);
}

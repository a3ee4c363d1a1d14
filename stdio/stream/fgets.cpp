#include "clib/string/block.h"
#include "clib/string/scan.h"
#include "include/errno.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

namespace {

// errno is cleared for the read and restored unless the read set it.
struct ErrnoGuard {
    int saved = errno;
    ErrnoGuard() { errno = 0; }
    bool failed() const { return errno != 0; }
    ~ErrnoGuard() {
        if (errno == 0) errno = saved;
    }
};

// Copies bytes through the first LF among the first n, or all n; answers
// the count. The line is looked at as it moves, two words a step.
int copy_line(char *to, const unsigned char *from, int n) {
    using orv::block::load, orv::block::store, orv::scan::zero_bytes;
    constexpr std::uint32_t lfs = 0x0A0A0A0Au;
    auto *d = reinterpret_cast<unsigned char *>(to);
    int i = 0;
    for (; i + 8 <= n; i += 8) {
        std::uint32_t a = load(from + i), b = load(from + i + 4);
        if (zero_bytes(a ^ lfs) | zero_bytes(b ^ lfs)) break;
        store(d + i, a);
        store(d + i + 4, b);
    }
    for (; i < n; ++i)
        if ((d[i] = from[i]) == '\n') return i + 1;
    return n;
}

// Up to `room` bytes through LF, taken as getc would take them: runs the
// buffer holds are copied whole. Answers the bytes stored.
int take_line(char *to, int room, FILE *s) {
    int stored = 0;
    while (stored < room) {
        if (s->_cnt > 0) {
            int run = room - stored < s->_cnt ? room - stored : s->_cnt;
            int done = copy_line(to + stored, s->_ptr, run);
            s->_ptr += done;
            s->_cnt -= done;
            stored += done;
            if (to[stored - 1] == '\n') break;
            continue;
        }
        int c = get(s);
        if (c == EOF) break;
        to[stored++] = static_cast<char>(c);
        if (c == '\n') break;
    }
    return stored;
}

} // namespace

extern "C" ORV_EXPORT char *fgets(char *buffer, int n, FILE *s) {
    ErrnoGuard guard;
    int stored = n >= 2 ? take_line(buffer, n - 1, s) : 0;
    if (stored > 0) buffer[stored] = 0;
    if (n >= 2 && stored == 0) return nullptr;
    return guard.failed() ? nullptr : buffer;
}

// No size limit: the caller's buffer must hold the whole line.
extern "C" ORV_EXPORT char *gets(char *buffer) {
    ErrnoGuard guard;
    int stored = 0;
    int c;
    while ((c = get(stdin)) != EOF && c != '\n') buffer[stored++] = static_cast<char>(c);
    if (c == EOF && stored == 0) return nullptr;
    buffer[stored] = 0;
    return guard.failed() ? nullptr : buffer;
}

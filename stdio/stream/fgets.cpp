#include "include/errno.h"
#include "include/string.h"
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

// Up to `room` bytes through LF, taken as getc would take them: runs the
// buffer holds are copied whole. Answers the bytes stored.
int take_line(char *to, int room, FILE *s) {
    int stored = 0;
    while (stored < room) {
        if (s->_cnt > 0) {
            int run = room - stored < s->_cnt ? room - stored : s->_cnt;
            const void *lf = memchr(s->_ptr, '\n', static_cast<size_t>(run));
            if (lf != nullptr) run = static_cast<int>(static_cast<const unsigned char *>(lf) - s->_ptr) + 1;
            memcpy(to + stored, s->_ptr, static_cast<size_t>(run));
            s->_ptr += run;
            s->_cnt -= run;
            stored += run;
            if (lf != nullptr) break;
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

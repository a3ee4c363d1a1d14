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

} // namespace

extern "C" ORV_EXPORT char *fgets(char *buffer, int n, FILE *s) {
    ErrnoGuard guard;
    int stored = 0;
    int c = 0;
    while (stored < n - 1 && (c = get(s)) != EOF) {
        buffer[stored++] = static_cast<char>(c);
        if (c == '\n') break;
    }
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

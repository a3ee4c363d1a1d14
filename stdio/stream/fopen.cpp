#include "include/errno.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

extern "C" ORV_EXPORT FILE *fopen(const char *path, const char *mode) {
    return __open_stream(path, mode, no_descriptor, nullptr);
}

// When the opening fails the stream stays closed.
extern "C" ORV_EXPORT FILE *freopen(const char *path, const char *mode, FILE *stream) {
    if (!in_array(stream)) return fail_open(EDOM);
    if (stream->_flag != 0) fclose(stream);
    return __open_stream(path, mode, no_descriptor, stream);
}

// Text mode belongs to the descriptor: the mode's 'b' changes nothing.
extern "C" ORV_EXPORT FILE *fdopen(int fd, const char *mode) {
    if (fd == no_descriptor) return fail_open(EDOM);
    return __open_stream("<UNKNOWN>", mode, fd, nullptr);
}


#include "include/io.h"
#include "runtime/fd/descriptor.h"
#include "runtime/hooks.h"

namespace {

constexpr unsigned chunk_fill = 255;  // a chunk closes at 255 bytes or more

// One staged chunk: LF becomes CR LF, so 255 source bytes or fewer make at
// most 256 staged ones.
struct Chunk {
    char bytes[chunk_fill + 1];
    unsigned length;
    unsigned crs_added;
};

const char *stage(const char *src, const char *end, Chunk &chunk) {
    chunk.length = 0;
    chunk.crs_added = 0;
    while (chunk.length < chunk_fill && src < end) {
        char c = *src++;
        if (c == '\n') {
            chunk.bytes[chunk.length++] = '\r';
            ++chunk.crs_added;
        }
        chunk.bytes[chunk.length++] = c;
    }
    return src;
}

// Console output goes to the host's write hook; 0 from it is failure.
int put_chunk(HANDLE h, Chunk &chunk) {
    if (orv::is_std_handle(h, STD_OUTPUT_HANDLE) || orv::is_std_handle(h, STD_ERROR_HANDLE)) {
        int state = -1;
        unsigned length = chunk.length;
        int n = __TVLKCFuncs.hook_write(chunk.bytes, &length, h, &state);
        return n == 0 ? orv::fail(EIO) : n;
    }
    DWORD n = 0;
    if (!WriteFile(h, chunk.bytes, chunk.length, &n, nullptr)) return orv::fail(EIO);
    return static_cast<int>(n);
}

// Answers the caller's bytes written: what went out less the CRs added,
// all of them, even those of a chunk that went out short.
int write_text(HANDLE h, const char *src, unsigned count) {
    const char *end = src + count;
    int total = 0, crs = 0;
    Chunk chunk;
    while (src < end) {
        src = stage(src, end, chunk);
        crs += static_cast<int>(chunk.crs_added);
        int n = put_chunk(h, chunk);
        if (n < 0) return -1;
        total += n;
        if (static_cast<unsigned>(n) < chunk.length) break;
    }
    return total - crs;
}

int write_binary(HANDLE h, const void *buffer, unsigned count) {
    DWORD n = 0;
    if (!WriteFile(h, buffer, count, &n, nullptr)) return orv::fail(EIO);
    return static_cast<int>(n);
}

} // namespace

extern "C" ORV_EXPORT int _write(int fd, const void *buffer, unsigned count) {
    fd_map *node = __find_fd_map(fd);
    if (node == nullptr) return orv::fail(EBADF);
    if (node->flags & FD_APPEND) SetFilePointer(node->handle, 0, nullptr, FILE_END);
    if (!(node->flags & (FD_TEXT | FD_WRITE_TEXT)))
        return write_binary(node->handle, buffer, count);
    return write_text(node->handle, static_cast<const char *>(buffer), count);
}

#include "clib/string/block.h"
#include "include/io.h"
#include "include/string.h"
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

// Whole runs between line ends at a time, as many source bytes as the
// byte-by-byte rule would take: a chunk closes once it holds 255 or more.
const char *stage(const char *src, const char *end, Chunk &chunk) {
    chunk.length = 0;
    chunk.crs_added = 0;
    while (chunk.length < chunk_fill && src < end) {
        std::size_t room = chunk_fill - chunk.length, left = static_cast<std::size_t>(end - src);
        std::size_t take = room < left ? room : left;
        auto *lf = static_cast<const char *>(memchr(src, '\n', take));
        std::size_t run = lf != nullptr ? static_cast<std::size_t>(lf - src) : take;
        orv::block::copy_up(reinterpret_cast<orv::block::byte *>(chunk.bytes + chunk.length),
                            reinterpret_cast<const orv::block::byte *>(src), run);
        chunk.length += static_cast<unsigned>(run);
        src += run;
        if (lf != nullptr) {
            chunk.bytes[chunk.length++] = '\r';
            chunk.bytes[chunk.length++] = '\n';
            ++chunk.crs_added;
            ++src;
        }
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

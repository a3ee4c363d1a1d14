#include "include/io.h"
#include "runtime/fd/descriptor.h"
#include "runtime/hooks.h"

namespace {

constexpr char ctrl_z = 0x1A, cr = '\r', lf = '\n';

// A CR that ends the block: the byte behind it decides, read straight
// from the handle. Anything but LF is given back to the file.
char resolve_final_cr(HANDLE h) {
    char next;
    DWORD n = 0;
    if (!ReadFile(h, &next, 1, &n, nullptr) || n == 0) return cr;
    if (next == lf) return lf;
    SetFilePointer(h, -1, nullptr, FILE_CURRENT);
    return cr;
}

// CR LF to LF in place; Ctrl-Z ends the data, and what follows it in the
// block is dropped. Answers the translated length.
int translate(HANDLE h, char *buffer, int raw) {
    const char *src = buffer, *end = buffer + raw;
    char *dst = buffer;
    while (src < end) {
        char c = *src++;
        if (c == ctrl_z) break;
        if (c != cr) {
            *dst++ = c;
        } else if (src == end) {
            *dst++ = resolve_final_cr(h);
        } else if (*src == lf) {
            *dst++ = lf;
            ++src;
        } else {
            *dst++ = cr;
        }
    }
    return static_cast<int>(dst - buffer);
}

// Standard input comes through the host's read hook, decided by handle at
// every call.
int read_raw(HANDLE h, void *buffer, unsigned count) {
    if (orv::is_std_handle(h, STD_INPUT_HANDLE)) {
        int state = -1;
        return __TVLKCFuncs.hook_read(buffer, count, &state);
    }
    DWORD n = 0;
    if (!ReadFile(h, buffer, count, &n, nullptr)) return orv::fail(EIO);
    return static_cast<int>(n);
}

} // namespace

extern "C" ORV_EXPORT int _read(int fd, void *buffer, unsigned count) {
    fd_map *node = __find_fd_map(fd);
    if (node == nullptr) return orv::fail(EBADF);
    int raw = read_raw(node->handle, buffer, count);
    if (raw <= 0 || !(node->flags & FD_TEXT)) return raw;
    return translate(node->handle, static_cast<char *>(buffer), raw);
}

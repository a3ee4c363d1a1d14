#include "clib/fs/status.h"
#include "include/errno.h"
#include "runtime/export.h"

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// The text from the last "." of the whole path, lower-cased, must be one of
// the four program extensions exactly.
bool executable_name(const char *path) {
    const char *dot = nullptr;
    for (const char *p = path; *p; ++p)
        if (*p == '.') dot = p;
    if (dot == nullptr) return false;
    char ext[5];
    unsigned n = 0;
    for (const char *p = dot; *p; ++p) {
        if (n == 4) return false;
        ext[n++] = lower(*p);
    }
    if (n != 4) return false;
    static constexpr char programs[4][5] = {".exe", ".bat", ".cmd", ".com"};
    for (const auto &e : programs)
        if (ext[1] == e[1] && ext[2] == e[2] && ext[3] == e[3]) return true;
    return false;
}

} // namespace

extern "C" ORV_EXPORT int _stat(const char *path, struct stat *buf) {
    if (buf == nullptr) return -1;
    orv::fs::clear_status(*buf);
    WIN32_FIND_DATAA data;
    HANDLE find = path && *path ? FindFirstFileA(path, &data) : INVALID_HANDLE_VALUE;
    if (find == INVALID_HANDLE_VALUE) {
        errno = ENOENT;
        return -1;
    }
    if (path[1] == ':') buf->st_dev = buf->st_rdev = lower(path[0]) - 'a';
    buf->st_mode = orv::fs::mode_of(data.dwFileAttributes, executable_name(path));
    buf->st_size = static_cast<long>(data.nFileSizeLow);
    bool times = orv::fs::convert_times(*buf, data.ftCreationTime, data.ftLastWriteTime,
                                        data.ftLastAccessTime);
    return FindClose(find) && times ? 0 : -1;
}

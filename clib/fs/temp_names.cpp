#include "clib/fs/temp_names.h"

#include "include/stdlib.h"

namespace orv::fs {

void make_name(char *to, const char *prefix, std::uint16_t &counter) {
    unsigned n = 0;
    while (n < 5 && prefix[n]) {
        to[n] = prefix[n];
        ++n;
    }
    unsigned v = counter++;
    for (unsigned i = 5; i-- > 0;) {
        to[n + i] = static_cast<char>('0' + v % 10);
        v /= 10;
    }
    to[n + 5] = 0;
}

char *join_path(const char *dir, const char *name) {
    unsigned d = 0, m = 0;
    while (dir[d]) ++d;
    while (name[m]) ++m;
    char *path = static_cast<char *>(malloc(d + m + 2));
    if (path == nullptr) return nullptr;
    unsigned n = 0;
    for (unsigned i = 0; i < d; ++i) path[n++] = dir[i];
    if (d == 0 || dir[d - 1] != '\\') path[n++] = '\\';
    for (unsigned i = 0; i <= m; ++i) path[n++] = name[i];
    return path;
}

} // namespace orv::fs

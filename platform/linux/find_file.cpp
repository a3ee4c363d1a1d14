// FindFirstFileA and FindClose. Only the first match is ever asked for, so
// a search handle holds nothing; of several matches the one first in byte
// order of the names is reported, so that the answer does not depend on
// the order of the directory. Names match case-sensitively, as the Linux
// file system keeps them.
#include "file_status.h"
#include "handles.h"
#include "last_error.h"
#include "native_path.h"
#include "syscall.h"

using namespace orv::k32;

namespace {

constexpr unsigned name_max = MAX_PATH;

bool has_wildcard(const char *s) {
    for (; *s; ++s)
        if (*s == '*' || *s == '?') return true;
    return false;
}

// `*` matches any run of characters, `?` any one character.
bool matches(const char *pattern, const char *name) {
    const char *star = nullptr, *resume = nullptr;
    while (*name) {
        if (*pattern == '*') {
            star = pattern++;
            resume = name;
        } else if (*pattern == '?' || *pattern == *name) {
            ++pattern, ++name;
        } else if (star) {
            pattern = star + 1;
            name = ++resume;
        } else {
            return false;
        }
    }
    while (*pattern == '*') ++pattern;
    return *pattern == 0;
}

bool before(const char *a, const char *b) {
    while (*a && *a == *b) ++a, ++b;
    return static_cast<unsigned char>(*a) < static_cast<unsigned char>(*b);
}

bool copy(char *to, const char *from, unsigned capacity) {
    unsigned i = 0;
    for (; from[i]; ++i) {
        if (i + 1 >= capacity) return false;
        to[i] = from[i];
    }
    to[i] = 0;
    return true;
}

struct Dirent64 {
    std::uint64_t ino;
    std::int64_t off;
    std::uint16_t reclen;
    std::uint8_t type;
    char name[1];
} __attribute__((packed));

// The first name in byte order of directory `dir` that matches `pattern`.
bool first_match(const char *dir, const char *pattern, char (&found)[name_max]) {
    long fd = orv::sys::call3(orv::sys::nr_open, orv::sys::arg(dir),
                              orv::sys::o_rdonly | orv::sys::o_directory | orv::sys::o_largefile, 0);
    if (orv::sys::failed(fd)) {
        set_error_from_errno(fd);
        return false;
    }
    bool any = false;
    alignas(8) char buf[2048];
    for (;;) {
        long got = orv::sys::call3(orv::sys::nr_getdents64, fd, orv::sys::arg(buf), sizeof buf);
        if (got <= 0) break;
        for (long at = 0; at < got;) {
            auto *d = reinterpret_cast<Dirent64 *>(buf + at);
            at += d->reclen;
            if (matches(pattern, d->name) && (!any || before(d->name, found)) &&
                copy(found, d->name, name_max))
                any = true;
        }
    }
    orv::sys::call1(orv::sys::nr_close, fd);
    if (!any) SetLastError(ERROR_FILE_NOT_FOUND);
    return any;
}

void fill(const FileStatus &st, const char *name, WIN32_FIND_DATAA *data) {
    *data = WIN32_FIND_DATAA{};
    data->dwFileAttributes = st.attributes;
    data->ftCreationTime = st.creation;
    data->ftLastAccessTime = st.last_access;
    data->ftLastWriteTime = st.last_write;
    data->nFileSizeHigh = static_cast<DWORD>(st.size >> 32);
    data->nFileSizeLow = static_cast<DWORD>(st.size);
    copy(data->cFileName, name, sizeof data->cFileName);
}

HANDLE find(const char *pattern, WIN32_FIND_DATAA *data) {
    NativePath path(pattern);
    if (!path.ok()) return INVALID_HANDLE_VALUE;
    const char *full = path.c_str();
    const char *slash = nullptr;
    for (const char *p = full; *p; ++p)
        if (*p == '/') slash = p;
    const char *last = slash ? slash + 1 : full;
    // A search names an entry: a root or a path ending in a separator names
    // none.
    if (*last == 0 || (last[0] != 0 && last[1] == ':' && last[2] == 0 && !slash))
        return fail(ERROR_FILE_NOT_FOUND, INVALID_HANDLE_VALUE);

    char name[name_max];
    char where[4096];
    if (has_wildcard(last)) {
        unsigned dir_len = slash ? static_cast<unsigned>(slash - full) : 0;
        if (slash && dir_len == 0) dir_len = 1;  // the root directory
        if (dir_len == 0) {
            where[0] = '.', where[1] = 0;
        } else {
            for (unsigned i = 0; i < dir_len; ++i) where[i] = full[i];
            where[dir_len] = 0;
        }
        if (!first_match(where, last, name)) return INVALID_HANDLE_VALUE;
        unsigned n = 0;
        for (const char *p = where; *p; ++p) where[n++] = *p;
        if (where[n - 1] != '/') where[n++] = '/';
        for (const char *p = name; *p && n + 1 < sizeof where; ++p) where[n++] = *p;
        where[n] = 0;
    } else {
        if (!copy(name, last, name_max) || !copy(where, full, sizeof where))
            return fail(ERROR_FILENAME_EXCED_RANGE, INVALID_HANDLE_VALUE);
    }
    FileStatus st;
    if (!status_of_path(where, st)) return INVALID_HANDLE_VALUE;
    HANDLE h = handle_new(Kind::find, -1);
    if (h == nullptr) return fail(ERROR_TOO_MANY_OPEN_FILES, INVALID_HANDLE_VALUE);
    fill(st, name, data);
    return h;
}

} // namespace

extern "C" K32_API HANDLE WINAPI FindFirstFileA(LPCSTR pattern, WIN32_FIND_DATAA *data) {
    return find(pattern, data);
}

extern "C" K32_API BOOL WINAPI FindClose(HANDLE h) {
    HandleEntry *e = handle_entry(h);
    if (e == nullptr || e->kind != Kind::find) return fail(ERROR_INVALID_HANDLE, 0);
    handle_release(h);
    return 1;
}

#include "command_line.h"

namespace orv::k32 {
namespace {

bool blank(char c) { return c == ' ' || c == '\t'; }

const char *program_name(const char *p, char *&out) {
    if (*p == '"') {
        for (++p; *p && *p != '"'; ++p) *out++ = *p;
        if (*p == '"') ++p;
    } else {
        while (*p && !blank(*p)) *out++ = *p++;
    }
    *out++ = 0;
    return p;
}

const char *argument(const char *p, char *&out) {
    bool quoted = false;
    while (*p && (quoted || !blank(*p))) {
        if (*p == '\\') {
            unsigned n = 0;
            while (*p == '\\') ++n, ++p;
            if (*p != '"') {
                while (n--) *out++ = '\\';
                continue;
            }
            for (unsigned i = 0; i < n / 2; ++i) *out++ = '\\';
            if (n % 2) {
                *out++ = '"';
                ++p;
                continue;
            }
        }
        if (*p == '"') {
            if (quoted && p[1] == '"') {
                *out++ = '"';
                p += 2;
                continue;
            }
            quoted = !quoted;
            ++p;
            continue;
        }
        *out++ = *p++;
    }
    *out++ = 0;
    return p;
}

} // namespace

int split_command_line(const char *line, char *text, char **argv, int max_args) {
    int count = 0;
    const char *p = line;
    while (blank(*p)) ++p;
    if (*p && count < max_args - 1) {
        argv[count++] = text;
        p = program_name(p, text);
    }
    for (;;) {
        while (blank(*p)) ++p;
        if (*p == 0 || count >= max_args - 1) break;
        argv[count++] = text;
        p = argument(p, text);
    }
    argv[count] = nullptr;
    return count;
}

} // namespace orv::k32

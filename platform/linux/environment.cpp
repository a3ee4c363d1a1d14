#include "environment.h"

namespace orv::k32 {
namespace {

char *empty_block[] = {nullptr};
char **block = empty_block;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// The dynamic loader calls a library's initialisers with argc, argv and
// the environment, before anything else in the process can ask for it.
[[gnu::constructor]] void capture(int, char **, char **envp) {
    if (envp != nullptr) block = envp;
}

} // namespace

char **environment_block() { return block; }

const char *environment_value(const char *name) {
    for (char **e = block; *e != nullptr; ++e) {
        const char *p = *e, *n = name;
        while (*n && lower(*p) == lower(*n)) ++p, ++n;
        if (*n == 0 && *p == '=' && p != *e) return p + 1;
    }
    return nullptr;
}

} // namespace orv::k32

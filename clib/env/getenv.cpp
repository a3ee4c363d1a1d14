#include "include/stdlib.h"
#include "include/string.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

// A name once found is frozen at the value first seen: entries NAME=VALUE
// are never changed, moved or freed.
namespace {

constexpr unsigned growth = 256;

struct Cache {
    char **entries = nullptr;
    unsigned capacity = 0;
    unsigned count = 0;
    char *value = nullptr; // each fresh value from the platform lands here
    DWORD value_size = 0;
};

Cache cache;

// Both blocks or neither, so that a failed first call leaves the cache as
// it was and the next call tries again.
bool create() {
    void *entries = malloc(growth * sizeof(char *));
    void *value = malloc(growth);
    if (entries == nullptr || value == nullptr) {
        free(entries);
        free(value);
        return false;
    }
    memset(entries, 0, growth * sizeof(char *));
    cache.entries = static_cast<char **>(entries);
    cache.capacity = growth;
    cache.value = static_cast<char *>(value);
    cache.value_size = growth;
    return true;
}

char *find(const char *name, size_t n) {
    for (unsigned i = 0; i < cache.count; ++i) {
        char *e = cache.entries[i];
        if (strncmp(e, name, n) == 0 && e[n] == '=') return e + n + 1;
    }
    return nullptr;
}

// The value's length, with the buffer grown once to the size the platform
// asks for; 0 when there is none.
DWORD query(const char *name) {
    DWORD length = GetEnvironmentVariableA(name, cache.value, cache.value_size);
    if (length == 0 || length <= cache.value_size) return length;
    free(cache.value);
    cache.value = static_cast<char *>(malloc(length));
    cache.value_size = cache.value != nullptr ? length : 0;
    if (cache.value == nullptr) return 0;
    return GetEnvironmentVariableA(name, cache.value, cache.value_size);
}

bool make_room() {
    if (cache.count < cache.capacity) return true;
    void *grown = realloc(cache.entries, (cache.capacity + growth) * sizeof(char *));
    if (grown == nullptr) return false;
    cache.entries = static_cast<char **>(grown);
    cache.capacity += growth;
    return true;
}

char *remember(const char *name, size_t n, DWORD length) {
    char *entry = static_cast<char *>(malloc(length + n + 2));
    if (entry == nullptr) return nullptr;
    memcpy(entry, name, n);
    entry[n] = '=';
    memcpy(entry + n + 1, cache.value, length);
    entry[n + 1 + length] = 0;
    cache.entries[cache.count++] = entry;
    return entry + n + 1;
}

} // namespace

extern "C" ORV_EXPORT char *getenv(const char *name) {
    if (cache.entries == nullptr && !create()) return nullptr;
    size_t n = strlen(name);
    if (char *found = find(name, n)) return found;
    DWORD length = query(name);
    if (length == 0 || !make_room()) return nullptr;
    return remember(name, n, length);
}

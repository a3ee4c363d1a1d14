#include "include/string.h"
#include "include/stdlib.h"
#include "runtime/export.h"

extern "C" ORV_EXPORT char *strdup(const char *s) {
    size_t size = strlen(s) + 1;
    auto *copy = static_cast<char *>(malloc(size));
    if (copy != nullptr) memcpy(copy, s, size);
    return copy;
}

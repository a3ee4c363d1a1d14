#include "stdio/stream/stream.h"

using namespace orv::stdio;

// No newline is added; the first failing store ends the string.
extern "C" ORV_EXPORT int fputs(const char *string, FILE *s) {
    for (const char *p = string; *p; ++p)
        if (put(static_cast<unsigned char>(*p), s) == EOF) return EOF;
    return 0;
}

extern "C" ORV_EXPORT int puts(const char *string) {
    if (fputs(string, stdout) == EOF) return EOF;
    return put('\n', stdout);
}

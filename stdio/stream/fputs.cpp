#include "include/string.h"
#include "stdio/stream/stream.h"

using namespace orv::stdio;

// No newline is added; the first failing store ends the string.
extern "C" ORV_EXPORT int fputs(const char *string, FILE *s) {
    std::size_t n = strlen(string);
    return write_run(reinterpret_cast<const unsigned char *>(string), n, s) == n ? 0 : EOF;
}

extern "C" ORV_EXPORT int puts(const char *string) {
    if (fputs(string, stdout) == EOF) return EOF;
    return put('\n', stdout);
}

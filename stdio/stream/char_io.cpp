#include "stdio/stream/stream.h"

using namespace orv::stdio;

extern "C" ORV_EXPORT int fgetc(FILE *s) { return get(s); }
extern "C" ORV_EXPORT int getc(FILE *s) { return get(s); }
extern "C" ORV_EXPORT int getchar(void) { return get(stdin); }
extern "C" ORV_EXPORT int fputc(int c, FILE *s) { return put(c, s); }
extern "C" ORV_EXPORT int putc(int c, FILE *s) { return put(c, s); }
extern "C" ORV_EXPORT int putchar(int c) { return put(c, stdout); }

// Words travel least significant byte first.
extern "C" ORV_EXPORT int _getw(FILE *s) {
    unsigned word = 0;
    for (int i = 0; i < 4; ++i) {
        int c = get(s);
        if (c == EOF) return EOF;
        word |= static_cast<unsigned>(c) << (8 * i);
    }
    return static_cast<int>(word);
}

extern "C" ORV_EXPORT int _putw(int word, FILE *s) {
    for (int i = 0; i < 4; ++i)
        if (put(static_cast<unsigned>(word) >> (8 * i), s) == EOF) return EOF;
    return word;
}

// The diagnostics' only contact with the error stream and with abort.
// The assertion text is spelled out piece by piece rather than formatted.
#include "clib/error/diag.h"
#include "include/stdio.h"
#include "include/stdlib.h"
#include "include/string.h"

namespace orv::diag {

void put_text(const char *text) { fputs(text, stderr); }

void put_char(int c) { fputc(c, stderr); }

// assertion_format, spelled out piece by piece.
void put_assertion(const char *file, int line, const char *text) {
    char digits[12];
    char *p = digits + sizeof digits;
    *--p = 0;
    unsigned magnitude = line < 0 ? 0u - static_cast<unsigned>(line) : static_cast<unsigned>(line);
    do *--p = static_cast<char>('0' + magnitude % 10); while ((magnitude /= 10) != 0);
    if (line < 0) *--p = '-';
    put_text("***Assertion failed in file ");
    put_text(file);
    put_text(" line ");
    put_text(p);
    put_text(":\n\t");
    put_text(text);
    put_text("\n");
}

void stop() { abort(); }

} // namespace orv::diag

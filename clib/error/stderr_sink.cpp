// The diagnostics' only contact with the error stream and with abort.
//
// FILE streams and abort are not part of the library yet. Until they are,
// text goes to descriptor 2 through _write (the descriptor is in text mode,
// as stderr's would be) and the stop ends the process with status 1, the
// status abort has under the default signal action. When they arrive, each
// body here becomes the single call named beside its declaration in diag.h,
// and nothing else changes.
#include "clib/error/diag.h"
#include "include/io.h"
#include "include/string.h"
#include "platform/kernel32.h"

namespace orv::diag {

void put_text(const char *text) { _write(2, text, static_cast<unsigned>(strlen(text))); }

void put_char(int c) {
    char byte = static_cast<char>(c);
    _write(2, &byte, 1);
}

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

void stop() { ExitProcess(1); }

} // namespace orv::diag

// The diagnostics' only contact with the error stream and with abort.
#include "clib/error/diag.h"
#include "include/stdio.h"
#include "include/stdlib.h"

namespace orv::diag {

void put_text(const char *text) { fputs(text, stderr); }

void put_char(int c) { fputc(c, stderr); }

void put_assertion(const char *file, int line, const char *text) {
    fprintf(stderr, assertion_format, file, line, text);
}

void stop() { abort(); }

} // namespace orv::diag

#include "clib/error/diag.h"
#include "clib/error/messages.h"
#include "include/errno.h"
#include "include/string.h"
#include "runtime/export.h"

namespace {
// perror's own buffer, so that it leaves strerror's text alone.
constinit char perror_buffer[orv::errtext::message_buffer_size] = "error #xxxx";
}

extern "C" ORV_EXPORT void perror(const char *prefix) {
    if (prefix != nullptr && *prefix != 0) {
        orv::diag::put_text(prefix);
        orv::diag::put_text(": ");
    }
    orv::diag::put_text(__orv_strerror(errno, perror_buffer));
    orv::diag::put_char('\n');
}

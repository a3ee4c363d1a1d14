#include "include/string.h"
#include "clib/error/messages.h"
#include "runtime/export.h"

namespace {
// Shared by every strerror call: a later numbered text overwrites it.
constinit char strerror_buffer[orv::errtext::message_buffer_size] = "error #xxxx";
}

extern "C" ORV_EXPORT char *__orv_strerror(int errnum, char *buffer) {
    if (buffer == nullptr) buffer = strerror_buffer;
    return orv::errtext::text_of(errnum, buffer);
}

extern "C" ORV_EXPORT char *strerror(int errnum) { return __orv_strerror(errnum, nullptr); }

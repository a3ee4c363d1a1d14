#include "clib/fs/file_exists.h"
#include "clib/fs/temp_names.h"
#include "include/stdio.h"

namespace {
constinit std::uint16_t counter = 1;
constinit char name_buffer[9] = {};
} // namespace

// A name relative to the current directory that names nothing yet.
extern "C" ORV_EXPORT char *tmpnam(char *buffer) {
    char *to = buffer ? buffer : name_buffer;
    do orv::fs::make_name(to, "tnm", counter);
    while (_orv_file_exists(to));
    return to;
}

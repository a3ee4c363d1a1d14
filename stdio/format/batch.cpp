#include "clib/string/block.h"
#include "include/io.h"
#include "stdio/format/format.h"

// One process-wide area gathers the characters of a call to an unbuffered
// stream, so that they reach the descriptor in one write per 1024.
namespace {

constexpr unsigned area_size = 1024;
unsigned char area[area_size];
unsigned char *cursor = area;

} // namespace

// Bypasses the stream's buffer and flags: a failure here sets no _IOERR.
extern "C" int __flush_batch(void *stream) {
    if (cursor == area) return 0;
    int held = static_cast<int>(cursor - area);
    cursor = area;
    int written = __orv_write(static_cast<FILE *>(stream)->_file, area, static_cast<unsigned>(held));
    return written == held ? written : -1;
}

extern "C" int __batch_put(int character, void *stream) {
    if (cursor == area + area_size && __flush_batch(stream) == -1) return -1;
    *cursor++ = static_cast<unsigned char>(character);
    return 0;
}

namespace orv::fmt {

int batch_run(void *stream, const char *text, int n) {
    for (int done = 0; done < n;) {
        if (cursor == area + area_size && __flush_batch(stream) == -1) return -1;
        int room = static_cast<int>(area + area_size - cursor);
        int run = n - done < room ? n - done : room;
        block::copy_up(cursor, reinterpret_cast<const block::byte *>(text + done), static_cast<std::size_t>(run));
        cursor += run;
        done += run;
    }
    return n;
}

} // namespace orv::fmt

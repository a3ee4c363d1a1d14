#include "clib/string/block.h"
#include "stdio/format/format.h"
#include "stdio/stream/stream.h"

// The engine hands its characters to put one at a time. For the sinks of
// its own, whose calls nobody else sees, runs go as blocks with the same
// result: the stream's inline step and its refill and flush calls as the
// character path would make them, the memory cursor, the batch area.
namespace orv::fmt {

int put_memory(int character, void *context) {
    char *&cursor = *static_cast<char **>(context);
    *cursor++ = static_cast<char>(character);
    return 0;
}

int put_run_any(_orv_sink *sink, const char *text, int n) {
    if (n <= 0) return 0;
    if (sink->put == put_memory) {
        char *&cursor = *static_cast<char **>(sink->context);
        block::copy_up(reinterpret_cast<block::byte *>(cursor), reinterpret_cast<const block::byte *>(text),
                       static_cast<std::size_t>(n));
        cursor += n;
        return n;
    }
    if (sink->put == fputc_put()) {
        auto *stream = static_cast<FILE *>(sink->context);
        auto done = stdio::write_run(reinterpret_cast<const unsigned char *>(text), static_cast<std::size_t>(n), stream);
        return done == static_cast<std::size_t>(n) ? n : -1;
    }
    if (sink->put == __batch_put) return batch_run(sink->context, text, n);
    for (int i = 0; i < n; ++i)
        if (sink->put(static_cast<unsigned char>(text[i]), sink->context) == -1) return -1;
    return n;
}

int put_fill_any(_orv_sink *sink, char c, int n) {
    constexpr int most = 32;
    char pad[most];
    int piece = n < most ? n : most;
    for (int i = 0; i < piece; ++i) pad[i] = c;
    for (int left = n; left > 0; left -= piece)
        if (put_run_any(sink, pad, left < piece ? left : piece) == -1) return -1;
    return n < 0 ? 0 : n;
}

} // namespace orv::fmt

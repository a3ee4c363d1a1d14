#include "stdio/format/format.h"
#include "stdio/stream/stream.h"

namespace orv::fmt {

int put_run(_orv_sink *sink, const char *text, int n) {
    if (sink->put == fputc_put()) {
        auto *stream = static_cast<FILE *>(sink->context);
        auto done = stdio::write_run(reinterpret_cast<const unsigned char *>(text), static_cast<std::size_t>(n), stream);
        return done == static_cast<std::size_t>(n) ? n : -1;
    }
    for (int i = 0; i < n; ++i)
        if (sink->put(static_cast<unsigned char>(text[i]), sink->context) == -1) return -1;
    return n;
}

} // namespace orv::fmt

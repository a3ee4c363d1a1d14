// The formatted output engine's pieces: the conversion record, the
// argument reader, the field printer and the integer printers.
#pragma once

#include "include/stdio.h"
#include "runtime/export.h"

#include <cstddef>
#include <cstdint>

static_assert(sizeof(_orv_sink) == 8);
static_assert(offsetof(_orv_sink, context) == 0 && offsetof(_orv_sink, put) == 4);

// One conversion, filled afresh for each.
struct format_spec {
    int width = -1;
    int precision = -1;
    bool pad_blank = true;
    bool right_justify = true;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool numeric = true;
    bool long_flag = false;
    bool long_long = false;
    bool short_flag = false;
    bool quad_flag = false;
    char conversion = 0;
};

namespace orv::fmt {

inline constexpr int text_area = 1024; // each printer's private text area

// fputc as a sink's put: the same call with the stream as context.
inline auto fputc_put() { return reinterpret_cast<int (*)(int, void *)>(fputc); }

// A plain pointer into the caller's argument area; slots have no alignment
// beyond their sizes.
struct Arguments {
    const unsigned char *at;
    template <class T> T take() {
        T v;
        __builtin_memcpy(&v, at, sizeof v);
        at += sizeof v;
        return v;
    }
    void skip(unsigned bytes) { at += bytes; }
};

// The memory sink's put: the byte at the cursor, which moves on; never fails.
int put_memory(int character, void *context);

// n characters to the sink, or n copies of c; for the library's own sinks
// as blocks, otherwise one put at a time. Answer n (0 for n below 1), or -1.
int put_run_any(_orv_sink *sink, const char *text, int n);
int put_fill_any(_orv_sink *sink, char c, int n);

// Where a short run can go at once: the memory cursor, or the room that
// a stream sink's inline step has; null when the run must take the long
// way.
inline char *direct_room(_orv_sink *sink, int n) {
    if (sink->put == put_memory) return *static_cast<char **>(sink->context);
    if (sink->put != fputc_put()) return nullptr;
    auto *stream = static_cast<FILE *>(sink->context);
    return n <= stream->_cnt ? reinterpret_cast<char *>(stream->_ptr) : nullptr;
}

// Steps the memory cursor, or the stream's inline step, over n bytes.
inline void direct_done(_orv_sink *sink, int n) {
    if (sink->put == put_memory) {
        *static_cast<char **>(sink->context) += n;
        return;
    }
    auto *stream = static_cast<FILE *>(sink->context);
    stream->_ptr += n;
    stream->_cnt -= n;
}

// Short runs and fills, the usual ones, inline.
inline int put_run(_orv_sink *sink, const char *text, int n) {
    if (n <= 0) return 0;
    char *to = n <= 16 ? direct_room(sink, n) : nullptr;
    if (to == nullptr) return put_run_any(sink, text, n);
    for (int i = 0; i < n; ++i) to[i] = text[i];
    direct_done(sink, n);
    return n;
}

inline int put_fill(_orv_sink *sink, char c, int n) {
    if (n <= 0) return 0;
    char *to = n <= 16 ? direct_room(sink, n) : nullptr;
    if (to == nullptr) return put_fill_any(sink, c, n);
    for (int i = 0; i < n; ++i) to[i] = c;
    direct_done(sink, n);
    return n;
}

// What __print_field does once it has measured its text: for printers
// that know the length.
int print_text(const format_spec *spec, _orv_sink *sink, const char *text, int length);

// A run through the batch area, as __batch_put would take it byte by byte.
int batch_run(void *stream, const char *text, int n);

} // namespace orv::fmt

extern "C" {
ORV_HIDDEN const char *__parse_conversion(format_spec *spec, const char *format, orv::fmt::Arguments *arguments);
ORV_HIDDEN int __print_field(const format_spec *spec, _orv_sink *sink, const char *text, int limit);
ORV_HIDDEN char *__digit_string(char *end, std::uint64_t value, int minimum, unsigned base);
ORV_HIDDEN int __print_signed(const format_spec *spec, _orv_sink *sink, std::int64_t value);
ORV_HIDDEN int __print_unsigned(const format_spec *spec, _orv_sink *sink, std::uint64_t value);
ORV_HIDDEN int __print_octal(const format_spec *spec, _orv_sink *sink, std::uint64_t value);
ORV_HIDDEN int __print_hex(const format_spec *spec, _orv_sink *sink, std::uint64_t value);
ORV_HIDDEN int __batch_put(int character, void *stream);
ORV_HIDDEN int __flush_batch(void *stream);
// The floating conversions e, f, g: the digits come with the quad layer.
ORV_HIDDEN int __print_floating(format_spec *spec, _orv_sink *sink, orv::fmt::Arguments *arguments);
}

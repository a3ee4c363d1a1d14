#include "include/errno.h"
#include "stdio/format/format.h"

// The six front ends: each builds a sink and calls the engine.
namespace {

using orv::fmt::put_memory;

int to_stream(FILE *stream, const char *format, const void *arguments) {
    _orv_sink sink{stream, orv::fmt::fputc_put()};
    return _printf_(&sink, format, arguments);
}

// The terminating zero goes through the same put, failure or not, and is
// not counted.
int to_memory(char *buffer, const char *format, const void *arguments) {
    char *cursor = buffer;
    _orv_sink sink{&cursor, put_memory};
    int count = _printf_(&sink, format, arguments);
    put_memory(0, &cursor);
    return count;
}

bool open_for_output(FILE *stream) {
    if (stream->_flag & (_IOWRT | _IORW)) return true;
    errno = EBADF;
    return false;
}

} // namespace

extern "C" ORV_EXPORT int vfprintf(FILE *stream, const char *format, va_list arguments) {
    return to_stream(stream, format, arguments);
}

extern "C" ORV_EXPORT int vprintf(const char *format, va_list arguments) {
    return to_stream(stdout, format, arguments);
}

extern "C" ORV_EXPORT int fprintf(FILE *stream, const char *format, ...) {
    if (!open_for_output(stream)) return -1;
    va_list arguments;
    va_start(arguments, format);
    int count = to_stream(stream, format, arguments);
    va_end(arguments);
    return count;
}

extern "C" ORV_EXPORT int printf(const char *format, ...) {
    if (!open_for_output(stdout)) return -1;
    va_list arguments;
    va_start(arguments, format);
    int count = to_stream(stdout, format, arguments);
    va_end(arguments);
    return count;
}

extern "C" ORV_EXPORT int vsprintf(char *buffer, const char *format, va_list arguments) {
    return to_memory(buffer, format, arguments);
}

extern "C" ORV_EXPORT int sprintf(char *buffer, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    int count = to_memory(buffer, format, arguments);
    va_end(arguments);
    return count;
}

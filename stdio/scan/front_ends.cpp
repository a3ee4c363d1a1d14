#include "include/errno.h"
#include "stdio/scan/scan.h"

// The three front ends: each builds a source and calls the engine.
namespace {

// The cursor stays on the terminator, so no read goes past it.
int get_string(void *context) {
    const unsigned char *&cursor = *static_cast<const unsigned char **>(context);
    if (*cursor == 0) return orv::scan::end_of_input;
    return *cursor++;
}

int unget_string(int character, _orv_source *source) {
    if (character != orv::scan::end_of_input) --*static_cast<const unsigned char **>(source->context);
    return character;
}

int unget_stream(int character, _orv_source *source) {
    return ungetc(character, static_cast<FILE *>(source->context));
}

int from_stream(FILE *stream, const char *format, const void *arguments) {
    if (stream == nullptr || !(stream->_flag & (_IOREAD | _IORW))) {
        errno = EBADF;
        return -1;
    }
    _orv_source source{stream, reinterpret_cast<int (*)(void *)>(fgetc)};
    return _scanf_(&source, unget_stream, format, arguments);
}

} // namespace

extern "C" ORV_EXPORT int scanf(const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    int n = from_stream(stdin, format, arguments);
    va_end(arguments);
    return n;
}

extern "C" ORV_EXPORT int fscanf(FILE *stream, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    int n = from_stream(stream, format, arguments);
    va_end(arguments);
    return n;
}

// No string is no input: -1, as for an empty one, and EINVAL to tell them apart.
extern "C" ORV_EXPORT int sscanf(const char *string, const char *format, ...) {
    if (string == nullptr) {
        errno = EINVAL;
        return -1;
    }
    const unsigned char *cursor = reinterpret_cast<const unsigned char *>(string);
    _orv_source source{&cursor, get_string};
    va_list arguments;
    va_start(arguments, format);
    int n = _scanf_(&source, unget_string, format, arguments);
    va_end(arguments);
    return n;
}

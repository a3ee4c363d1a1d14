#include "stdio/format/format.h"

using orv::fmt::Arguments;

namespace {

// The argument of an integer conversion, widened to 64 bits: with sign for
// d and i, with zeros for the rest.
std::uint64_t integer_argument(const format_spec *spec, Arguments &args) {
    bool is_signed = spec->conversion == 'd' || spec->conversion == 'i';
    if (spec->long_long) return args.take<std::uint64_t>();
    std::int32_t word = args.take<std::int32_t>();
    if (spec->short_flag)
        return is_signed ? static_cast<std::uint64_t>(static_cast<std::int64_t>(static_cast<std::int16_t>(word)))
                         : static_cast<std::uint16_t>(word);
    return is_signed ? static_cast<std::uint64_t>(static_cast<std::int64_t>(word)) : static_cast<std::uint32_t>(word);
}

int print_string(const format_spec *spec, _orv_sink *sink, const char *s) {
    if (s == nullptr) s = "(null)";
    int limit = spec->precision >= 0 ? spec->precision : 0x7FFFFFFF;
    return __print_field(spec, sink, s, limit);
}

int store_count(const format_spec *spec, Arguments &args, int count) {
    void *where = args.take<void *>();
    if (spec->short_flag) *static_cast<std::int16_t *>(where) = static_cast<std::int16_t>(count);
    else *static_cast<std::int32_t *>(where) = count;
    return 0;
}

// One conversion's text; answers its count or -1.
int convert(format_spec *spec, _orv_sink *sink, Arguments &args, int count) {
    switch (spec->conversion) {
    case 'd': case 'i': return __print_signed(spec, sink, static_cast<std::int64_t>(integer_argument(spec, args)));
    case 'u': return __print_unsigned(spec, sink, integer_argument(spec, args));
    case 'o': return __print_octal(spec, sink, integer_argument(spec, args));
    case 'x': case 'X': return __print_hex(spec, sink, integer_argument(spec, args));
    case 'p':
        return __print_hex(spec, sink, static_cast<std::uint64_t>(static_cast<std::int64_t>(args.take<std::int32_t>())));
    case 's': return print_string(spec, sink, args.take<const char *>());
    case 'c': {
        char one[2] = {static_cast<char>(args.take<int>()), 0};
        return __print_field(spec, sink, one, 1);
    }
    case 'n': return store_count(spec, args, count);
    case 'e': case 'E': case 'f': case 'F': case 'g': case 'G':
        return __print_floating(spec, sink, &args);
    default: {
        char one[2] = {spec->conversion, 0};
        return __print_field(spec, sink, one, 1);
    }
    }
}

} // namespace

// Walks the format, handing characters one at a time to the sink.
extern "C" ORV_EXPORT int _printf_(_orv_sink *sink, const char *format, const void *arguments) {
    if (format == nullptr) return 0;
    if (sink->put == orv::fmt::fputc_put() && (static_cast<FILE *>(sink->context)->_flag & _IONBF))
        sink->put = __batch_put;
    // Only a batching call, this one or a record that an earlier call
    // turned, can leave bytes in the batch area to flush.
    bool batching = sink->put == __batch_put;
    Arguments args{static_cast<const unsigned char *>(arguments)};
    format_spec spec;
    int count = 0;
    for (const char *p = format; *p;) {
        int n;
        if (*p != '%') {
            const char *run = p;
            while (*p && *p != '%') ++p;
            n = orv::fmt::put_run(sink, run, static_cast<int>(p - run));
        } else {
            p = __parse_conversion(&spec, p + 1, &args);
            n = spec.conversion == 0 ? 0 : convert(&spec, sink, args, count);
        }
        if (n == -1) {
            count = -1;
            break;
        }
        count += n;
    }
    if (batching) __flush_batch(sink->context);
    return count;
}

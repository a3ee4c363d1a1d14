#include "stdio/format/float_text.h"

// A double takes 8 bytes of the argument area, a quad ("ll") 16.
extern "C" int __print_floating(format_spec *spec, _orv_sink *sink, orv::fmt::Arguments *arguments) {
    if (!spec->quad_flag) return orv::fmt::print_double(spec, sink, arguments->take<double>());
    double high = arguments->take<double>();
    double low = arguments->take<double>();
    return orv::fmt::print_quad(spec, sink, high, low);
}

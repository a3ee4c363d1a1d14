#include "stdio/format/format.h"

// The floating conversions take their slot, 8 bytes for a double or 16 for
// a quad with "ll"; their digits come with the floating-point text layer,
// and until then they print nothing.
extern "C" int __print_floating(const format_spec *spec, _orv_sink *, orv::fmt::Arguments *arguments) {
    arguments->skip(spec->quad_flag ? 16 : 8);
    return 0;
}

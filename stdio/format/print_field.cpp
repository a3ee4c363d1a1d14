#include "stdio/format/format.h"

using orv::fmt::put_fill;
using orv::fmt::put_run;

namespace orv::fmt {

// Zero padding of a number falls between its sign or 0x prefix and its
// digits; padding on the right is always blanks.
int print_text(const format_spec *spec, _orv_sink *sink, const char *text, int length) {
    int total = spec->width > length ? spec->width : length;
    int lead = 0; // sign and prefix put ahead of zero padding
    if (spec->numeric && !spec->pad_blank) {
        if (length > 0 && (*text == '-' || *text == '+' || *text == ' ')) lead = 1;
        if (length >= lead + 2 && text[lead] == '0' && (text[lead + 1] == 'x' || text[lead + 1] == 'X')) lead += 2;
    }
    if (put_run(sink, text, lead) == -1) return -1;
    if (spec->right_justify && put_fill(sink, spec->pad_blank ? ' ' : '0', total - length) == -1) return -1;
    if (put_run(sink, text + lead, length - lead) == -1) return -1;
    if (!spec->right_justify && put_fill(sink, ' ', total - length) == -1) return -1;
    return total;
}

} // namespace orv::fmt

// The one place that pads.
extern "C" int __print_field(const format_spec *spec, _orv_sink *sink, const char *text, int limit) {
    int length = 0;
    while (length < limit && text[length]) ++length;
    return orv::fmt::print_text(spec, sink, text, length);
}

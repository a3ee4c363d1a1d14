#include "stdio/format/format.h"

namespace {

struct Out {
    _orv_sink *sink;
    int count = 0;
    bool put(char c) {
        if (sink->put(static_cast<unsigned char>(c), sink->context) == -1) return false;
        ++count;
        return true;
    }
};

} // namespace

// The one place that pads. Zero padding of a number falls between its sign
// or 0x prefix and its digits; padding on the right is always blanks.
extern "C" int __print_field(const format_spec *spec, _orv_sink *sink, const char *text, int limit) {
    char pad = spec->pad_blank ? ' ' : '0';
    int length = 0;
    while (length < limit && text[length]) ++length;
    int total = spec->width > length ? spec->width : length;
    Out out{sink};
    if (spec->numeric && pad == '0') {
        if (length > 0 && (*text == '-' || *text == '+' || *text == ' ')) {
            if (!out.put(*text++)) return -1;
            --length, --total;
        }
        if (length >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
            if (!out.put(text[0]) || !out.put(text[1])) return -1;
            text += 2, length -= 2, total -= 2;
        }
    }
    if (spec->right_justify)
        for (; length < total; --total)
            if (!out.put(pad)) return -1;
    if (orv::fmt::put_run(sink, text, length) == -1) return -1;
    out.count += length;
    for (; length < total; --total)
        if (!out.put(' ')) return -1;
    return out.count;
}

#include "stdio/scan/scan.h"

namespace {

using uchar = unsigned char;

// Members up to the closing ']'. A leading ']' or '-' is a member; a '-'
// between two bytes of which the second is higher makes a range.
const uchar *scan_set(scan_spec *spec, const uchar *p) {
    for (uchar &entry : spec->set) entry = 0;
    spec->negate = *p == '^';
    if (spec->negate) ++p;
    if (*p == ']' || *p == '-') spec->set[*p++] = 1;
    // From here a '-' always has a byte of the set before it.
    for (; *p != 0 && *p != ']'; ++p) {
        if (*p == '-' && p[1] != ']' && p[1] != 0 && p[1] > p[-1]) {
            for (int member = p[-1] + 1; member <= p[1]; ++member) spec->set[member] = 1;
            ++p;
            continue;
        }
        spec->set[*p] = 1;
    }
    return *p == ']' ? p + 1 : p;
}

} // namespace

// Starts behind the '%'; answers the position behind the conversion. A
// format that ends early leaves `conversion` 0 and the position on the
// terminator, so nothing past the format is read.
extern "C" const char *__parse_scan_conversion(scan_spec *spec, const char *format) {
    const uchar *p = reinterpret_cast<const uchar *>(format);
    spec->suppress = *p == '*';
    if (spec->suppress) ++p;
    spec->width = -1;
    if (*p >= '0' && *p <= '9') {
        unsigned width = 0; // no overflow test, as the output engine has none
        while (*p >= '0' && *p <= '9') width = width * 10 + (*p++ - '0');
        spec->width = static_cast<int>(width);
    }
    spec->size = 1;
    if (*p == 'h') {
        spec->size = 0;
        ++p;
    } else if (*p == 'l' && p[1] == 'l') {
        spec->size = 3;
        p += 2;
    } else if (*p == 'l' || *p == 'L') {
        spec->size = *p == 'l' ? 2 : 3;
        ++p;
    }
    spec->conversion = static_cast<char>(*p);
    if (*p == 0) return reinterpret_cast<const char *>(p);
    ++p;
    if (spec->conversion == 'c' && spec->width == -1) spec->width = 1;
    if (spec->conversion == '[') p = scan_set(spec, p);
    return reinterpret_cast<const char *>(p);
}

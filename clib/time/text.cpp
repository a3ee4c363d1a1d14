#include "clib/time/text.h"

namespace orv::cal {

TextOut &TextOut::text(const char *s, unsigned max) {
    while (max-- && *s) put(*s++);
    return *this;
}

TextOut &TextOut::number(int value, unsigned width, unsigned digits) {
    unsigned magnitude = value < 0 ? 0u - static_cast<unsigned>(value) : static_cast<unsigned>(value);
    char buf[12];
    unsigned n = 0;
    do {
        buf[n++] = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude);
    while (n < digits) buf[n++] = '0';
    if (value < 0) buf[n++] = '-';
    for (unsigned pad = n; pad < width; ++pad) put(' ');
    while (n) put(buf[--n]);
    return *this;
}

TextOut &TextOut::fixed(int value, unsigned digits) {
    unsigned v = value < 0 ? 0 : static_cast<unsigned>(value);
    unsigned scale = 1;
    for (unsigned i = 1; i < digits; ++i) scale *= 10;
    for (; scale; scale /= 10) put(static_cast<char>('0' + v / scale % 10));
    return *this;
}

unsigned TextOut::finish(char *start) {
    *p_ = 0;
    return static_cast<unsigned>(p_ - start);
}

} // namespace orv::cal

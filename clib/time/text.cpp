#include "clib/time/text.h"

namespace orv::cal {

TextOut &TextOut::text(const char *s, unsigned max) {
    while (max-- && *s) *p_++ = *s++;
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
    for (unsigned pad = n; pad < width; ++pad) *p_++ = ' ';
    while (n) *p_++ = buf[--n];
    return *this;
}

TextOut &TextOut::fixed(int value, unsigned digits) {
    unsigned v = value < 0 ? 0 : static_cast<unsigned>(value);
    for (unsigned i = digits; i-- > 0;) {
        p_[i] = static_cast<char>('0' + v % 10);
        v /= 10;
    }
    p_ += digits;
    return *this;
}

unsigned TextOut::finish(char *start) {
    *p_ = 0;
    return static_cast<unsigned>(p_ - start);
}

} // namespace orv::cal

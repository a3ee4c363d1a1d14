// A small text writer for the calendar texts: strings cut to a length and
// decimal numbers with a field width or a digit count, the few forms the
// texts need, written without the format engine.
#pragma once

namespace orv::cal {

class TextOut {
public:
    // Writes into `to`, which holds `capacity` bytes: characters beyond the
    // room for a terminator are dropped, so fields out of their ranges
    // cannot run past a fixed buffer.
    TextOut(char *to, unsigned capacity) : p_(to), end_(to + capacity - 1) {}
    // At most `max` characters of `s`.
    TextOut &text(const char *s, unsigned max = ~0u);
    // At least `digits` digits, right-aligned with blanks in `width`.
    TextOut &number(int value, unsigned width, unsigned digits = 1);
    // Exactly `digits` digits of `value` with leading zeros; a negative value
    // counts as 0 and higher digits are dropped.
    TextOut &fixed(int value, unsigned digits);
    // Stores the terminator; answers the length written.
    unsigned finish(char *start);

private:
    void put(char c) {
        if (p_ < end_) *p_++ = c;
    }

    char *p_;
    char *end_;
};

} // namespace orv::cal

// A small text writer for the calendar texts: strings cut to a length and
// decimal numbers with a field width or a digit count, the few forms the
// texts need, written without the format engine.
#pragma once

namespace orv::cal {

class TextOut {
public:
    explicit TextOut(char *to) : p_(to) {}
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
    char *p_;
};

} // namespace orv::cal

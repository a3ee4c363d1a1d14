#include "include/math.h"
#include "stdio/scan/scan.h"

using namespace orv::scan;

namespace {

constexpr quad ten = {10.0, 0.0};
constexpr int lowest_step = -307; // a power of ten that stays in range

bool is_digit(int c) { return orv::ctype::bits(c) & _IS_DIG; }
bool is_sign(int c) { return c == '-' || c == '+'; }

struct QuadScan {
    scan_spec *spec;
    int c;
    quad value = {0.0, 0.0};
    int digits = 0; // taken into value
    int point = -1; // digits before the point, once there is one
    int zeros = 0;  // pending: brought in only when a later digit needs them
    int sign = 0;
    unsigned exponent = 0; // decimal; wraps unchecked
    bool stop = false;
    bool special_value = false; // an infinity or NaN, final as read

    void bring_in_zeros() {
        for (; zeros > 0; --zeros, ++digits) value = qmul(value, ten);
    }

    void digit() {
        if (c == '0') {
            ++zeros;
        } else {
            bring_in_zeros();
            value = qadd(qmul(value, ten), quad{static_cast<double>(c - '0'), 0.0});
            ++digits;
        }
        --spec->width;
    }

    void decimal_point() {
        if (point != -1) {
            spec->failed = stop = true;
            return;
        }
        bring_in_zeros();
        point = digits;
        --spec->width;
    }

    void sign_of_number() {
        if (sign != 0 || digits > 0) {
            spec->failed = stop = true;
            return;
        }
        sign = c == '-' ? -1 : 1;
        --spec->width;
    }

    // A missing exponent is no error: 1e reads as 1.
    void exponent_part() {
        if (point == -1) bring_in_zeros();
        c = take(spec);
        if ((is_digit(c) || is_sign(c)) && spec->width != 0) {
            bool negative = false;
            if (is_sign(c)) {
                negative = c == '-';
                c = take(spec);
            }
            for (; is_digit(c) && spec->width != 0; c = take(spec)) exponent = exponent * 10 + (c - '0');
            if (negative) exponent = 0 - exponent;
        }
        stop = true;
    }

    // The two letters behind an I or N, in either case; the last one is
    // consumed, and a wrong one fails.
    bool word(char second, char third) {
        c = next(spec);
        if ((c | 0x20) != second) return false;
        c = next(spec);
        if ((c | 0x20) != third) return false;
        c = next(spec);
        return true;
    }

    // Answers false when no rule takes the character in hand.
    bool step() {
        bool width_left = spec->width != 0;
        if (is_digit(c) && width_left) digit();
        else if (c == '.' && width_left) decimal_point();
        else if (is_sign(c)) sign_of_number();
        else if ((c == 'E' || c == 'e') && width_left) exponent_part();
        else if ((c | 0x20) == 'i' || (c | 0x20) == 'n') return special();
        else return false;
        if (!stop) c = next(spec);
        return true;
    }

    bool special() {
        if (spec->width >= 0 && spec->width < 3) {
            c = next(spec); // too little width: the letter is passed over
            return true;
        }
        bool infinity = (c | 0x20) == 'i';
        special_value = infinity ? word('n', 'f') : word('a', 'n');
        if (special_value) value = quad{infinity ? __DOUBLE_INF : __DOUBLE_NAN, 0.0};
        else spec->failed = true;
        stop = true;
        return true;
    }

    void scale() {
        if (point == -1) bring_in_zeros();
        else exponent -= static_cast<unsigned>(digits - point);
        int power = static_cast<int>(exponent);
        if (power < lowest_step) {
            value = qmul(value, qpowi(ten, power - lowest_step));
            power = lowest_step;
        }
        if (power != 0) value = qmul(value, qpowi(ten, power));
    }
};

} // namespace

// A loop of its own in quad arithmetic. No test that a digit was seen: a
// text with no number reads as 0, and the character stays in hand.
extern "C" int __scan_quad(scan_spec *spec, int c, quad *result) {
    QuadScan s{spec, skip_space(spec, c)};
    if (spec->width == 0) spec->failed = true;
    while (s.c != 0 && !s.stop && s.step()) {}
    if (s.special_value) {
        if (s.sign < 0) s.value.hi = -s.value.hi;
    } else {
        s.scale();
        if (s.sign < 0) s.value = quad{-s.value.hi, -s.value.lo};
    }
    *result = s.value;
    return s.c;
}

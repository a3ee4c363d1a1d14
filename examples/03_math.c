/*
 * The mathematics of the library: a few values of the double and float
 * functions, their errors through errno, and how a NaN argument takes
 * the comparisons inside the functions.
 */
#include <errno.h>
#include <io.h>
#include <math.h>

static void say(const char *s) {
    unsigned n = 0;
    while (s[n]) ++n;
    _write(1, s, n);
}

/* A value rounded to 15 decimals, and its bit pattern; the digits come
   from the library's own floor and fmod. */
static void say_value(const char *label, double v) {
    char buf[80];
    int n = 0;
    union { double d; unsigned long long u; } bits;
    bits.d = v;
    say(label);
    if (isnan(v)) {
        say("NaN");
    } else if (v == __DOUBLE_INF || v == -__DOUBLE_INF) {
        say(v < 0 ? "-infinity" : "infinity");
    } else {
        if (bits.u >> 63) buf[n++] = '-';
        double a = fabs(v) + 5e-16;
        double ip = floor(a), fp = a - ip;
        char digits[24];
        int k = 0;
        do { digits[k++] = (char)('0' + (int)fmod(ip, 10.0)); ip = floor(ip / 10.0); } while (ip >= 1.0 && k < 20);
        while (k) buf[n++] = digits[--k];
        buf[n++] = '.';
        for (int i = 0; i < 15; ++i) {
            fp *= 10.0;
            double d = floor(fp);
            buf[n++] = (char)('0' + (int)d);
            fp -= d;
        }
    }
    buf[n++] = ' ';
    buf[n++] = ' ';
    for (int i = 15; i >= 0; --i) buf[n++] = "0123456789ABCDEF"[(bits.u >> (4 * i)) & 15];
    buf[n++] = '\n';
    _write(1, buf, (unsigned)n);
}

static void say_errno(void) {
    say(errno == EDOM ? "    errno EDOM\n" : errno == ERANGE ? "    errno ERANGE\n" : "    errno 0\n");
}

int main(void) {
    say("Values:\n");
    say_value("  exp(1)           ", exp(1.0));
    say_value("  log(10)          ", log(10.0));
    say_value("  log10(1e15)      ", log10(1e15));
    say_value("  sqrt(2)          ", sqrt(2.0));
    say_value("  sin(pi/6)        ", sin(3.141592653589793 / 6));
    say_value("  cos(0)           ", cos(0.0));
    say_value("  atan2(1, -1)     ", atan2(1.0, -1.0));
    say_value("  pow(2, 0.5)      ", pow(2.0, 0.5));
    say_value("  pow(1.5, 20)     ", pow(1.5, 20.0));
    say_value("  tanh(0.25)       ", tanh(0.25));
    say_value("  floor(-2.5)      ", floor(-2.5));
    say_value("  ceil(-0.5)       ", ceil(-0.5));
    say_value("  rint(2.5)        ", rint(2.5));
    say_value("  fmod(10, 3)      ", fmod(10.0, 3.0));
    int e;
    double m = frexp(48.0, &e);
    say_value("  frexp(48) ->     ", m);
    say_value("    and exponent   ", e);
    say_value("  sqrtf(2)         ", sqrtf(2.0f));
    say_value("  expf(1)          ", expf(1.0f));

    say("Errors:\n");
    errno = 0;
    say_value("  log(0)           ", log(0.0));
    say_errno();
    errno = 0;
    say_value("  sqrt(-1)         ", sqrt(-1.0));
    say_errno();
    errno = 0;
    say_value("  exp(709.5)       ", exp(709.5));
    say_errno();
    errno = 0;
    say_value("  pow(10, 400)     ", pow(10.0, 400.0));
    say_errno();

    say("A NaN argument counts as less than and equal to what it meets:\n");
    say_value("  ceil(NaN)        ", ceil(__DOUBLE_NAN));
    say_value("  tanh(NaN)        ", tanh(__DOUBLE_NAN));
    say_value("  atan2(1, NaN)    ", atan2(1.0, __DOUBLE_NAN));
    say_value("  copysign(2, NaN) ", copysign(2.0, __DOUBLE_NAN));
    return 0;
}

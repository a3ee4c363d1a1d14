/* The text of doubles and quads in e, f and g styles. */
#pragma GCC diagnostic ignored "-Wformat"
#include <quad.h>
#include <stdio.h>
#include <string.h>

#include "harness.h"

#define SAME(want, ...)                      \
    do {                                     \
        static char out_[1100];              \
        int n_ = sprintf(out_, __VA_ARGS__); \
        CHECK_STR(out_, want);               \
        CHECK_EQ(n_, (int)strlen(want));     \
    } while (0)

static quad q(double hi, double lo) {
    quad v = {hi, lo};
    return v;
}

int main(void) {
    double inf = 1.0 / 0.0, nan = 0.0 / 0.0;
    t_section("double: fixed and exponent styles");
    SAME("1.500000|3|3.|-0.000000", "%f|%.0f|%#.0f|%f", 1.5, 2.5, 3.0, -0.0);
    SAME("0.000000e+00|1.234500E+03|1.000000e+100|1.000000e-05|9e+00", "%e|%E|%e|%e|%.0e", 0.0, 1234.5,
         1e100, 1e-5, 9.5);
    SAME("0.10000000000000000000|0.00|0.0", "%.20f|%.2f|%.1f", 0.1, 0.006, 0.06);
    static char big[400] = "17976931348623157";
    memset(big + 17, '0', 292);
    strcpy(big + 309, ".000000");
    SAME(big, "%f", 1.7976931348623157e308);

    t_section("double: general style");
    SAME("100000|1e+06|0.0001|1e-05|0|0.00000|5|3.14159", "%g|%g|%g|%g|%g|%#g|%.0g|%g", 100000.0, 1000000.0,
         0.0001, 0.00001, 0.0, 0.0, 5.0, 3.14159265);
    SAME("1.5E-10|123457|0.1", "%G|%g|%.17g", 1.5e-10, 123456.7, 0.1);

    t_section("infinities and NaN");
    SAME("+INF|-INF|NaN|    +INF|+INF|+INF|  NaN", "%f|%f|%f|%08f|%+f|% f|%5e", inf, -inf, nan, inf, inf, inf, nan);

    t_section("quad");
    SAME("1000.00|123.46|0.000000|0.000000e+00", "%.2llf|%.2llf|%llf|%lle", q(999.999, 0), q(123.456, 0),
         q(-0.0, 0), q(0.0, 0));
    SAME("100000|3.14159|5e+00|++INF| -INF|NaN", "%llg|%llg|%.0llg|%+llf|% llf|%llf", q(100000.0, 0),
         q(3.14159265, 0), q(5.0, 0), q(inf, 0), q(-inf, 0), q(nan, 0));
    /* Specials pad with blanks under the 0 flag, after their sign; the
       quad digits round half up, with no taking back at 10. */
    SAME("      -INF| ++INF|NaN  |1e+01", "%010llf|%+06llf|%-5lle|%.0lle", q(-inf, 0), q(inf, 0), q(nan, 0),
         q(9.5, 0));
    /* 2/3 to 40 places: 31 digits from the value, then zeros. */
    SAME("6.6666666666666666666666666666660000000000e-01", "%.40lle", qdivd(q(2.0, 0), 3.0));
    /* Below a power of ten by less than the digits show: the high double
       is the power itself, and its digit of 10 carries. */
    SAME("1.000000e+00|1.000000|1.000000e+10|10", "%lle|%llf|%lle|%llg", q(1.0, -1e-40), q(1.0, -1e-40),
         q(1e10, -1e-30), q(10.0, -1e-36));
    /* The low part's digits follow the high part's: 123456789012345683968
       and 1234.56789. */
    SAME("-1.2345678901234568520256789000e+20", "%.28lle", q(-123456789012345683968.0, -1234.56789));
    return t_finish();
}

/*
 * The accuracy of the double and float families: reads the file that
 * tools/math_refs.c writes (inputs, correctly rounded results and the rest
 * of the exact value) and prints, per function and range, the largest and
 * the mean error in units in the last place of the result, as a Markdown
 * table. Built against liborv; `ninja -C build math_accuracy` runs it.
 *
 *   math_accuracy refs.bin
 */
#include <fcntl.h>
#include <io.h>
#include <math.h>
#include <stdlib.h>

#include "../tools/math_functions.h"


typedef unsigned long long u64;

static double D(u64 u) { union { u64 u; double d; } v; v.u = u; return v.d; }
static u64 B(double d) { union { u64 u; double d; } v; v.d = d; return v.u; }


static void out(const char *s) {
    unsigned n = 0;
    while (s[n]) ++n;
    _write(1, s, n);
}

/* A non-negative value with three decimals. */
static void out_fixed(double v) {
    char buf[32], d[24];
    int n = 0, k = 0;
    unsigned long long t = (unsigned long long)(v * 1000 + 0.5);
    unsigned long long ip = t / 1000, fp = t % 1000;
    do { d[k++] = (char)('0' + ip % 10); ip /= 10; } while (ip);
    while (k) buf[n++] = d[--k];
    buf[n++] = '.';
    buf[n++] = (char)('0' + fp / 100);
    buf[n++] = (char)('0' + fp / 10 % 10);
    buf[n++] = (char)('0' + fp % 10);
    buf[n] = 0;
    out(buf);
}

static int read_all(int fd, void *p, unsigned n) {
    char *c = p;
    while (n) {
        int got = _read(fd, c, n);
        if (got <= 0) return -1;
        c += got;
        n -= (unsigned)got;
    }
    return 0;
}

int main(int argc, char **argv) {
    if (argc < 2) { out("usage: math_accuracy refs.bin\n"); return 2; }
    int fd = _open(argv[1], O_RDONLY | O_BINARY);
    if (fd < 0) { out("cannot open the reference file\n"); return 1; }
    out("| Function and range | Width | Samples | Max ulp | Mean ulp |\n");
    out("|---|---|---|---|---|\n");
    for (;;) {
        unsigned head[4];
        char name[64];
        if (read_all(fd, head, sizeof head) || read_all(fd, name, sizeof name)) break;
        int fn = (int)head[0], single = (int)head[1];
        unsigned count = head[3];
        double worst = 0, sum = 0;
        for (unsigned i = 0; i < count; ++i) {
            u64 rec[4];
            if (read_all(fd, rec, sizeof rec)) return 1;
            double got, hi, lo = D(rec[3]);
            int e;
            if (single) {
                union { unsigned u; float f; } r;
                r.u = (unsigned)rec[2];
                hi = r.f;
                got = call_float(fn, (float)D(rec[0]), (float)D(rec[1]));
                e = (int)((r.u >> 23) & 0xFF) - 127 - 23;
            } else {
                hi = D(rec[2]);
                got = call_double(fn, D(rec[0]), D(rec[1]));
                e = (int)((rec[2] >> 52) & 0x7FF) - 1023 - 52;
            }
            /* scaled by 2^-e in two steps, to stay within the range */
            int h1 = -e / 2, h2 = -e - h1;
            double err = ((got - hi) - lo) * D((u64)(h1 + 1023) << 52) * D((u64)(h2 + 1023) << 52);
            if (err < 0) err = -err;
            if (!(err == err)) err = 1e9;  /* a NaN where a number belongs */
            if (err > worst) worst = err;
            sum += err;
        }
        out("| ");
        out(name);
        out(single ? " | float | " : " | double | ");
        char num[16];
        int k = 0;
        unsigned c = count;
        char d[16];
        do { d[k++] = (char)('0' + c % 10); c /= 10; } while (c);
        int n = 0;
        while (k) num[n++] = d[--k];
        num[n] = 0;
        out(num);
        out(" | ");
        out_fixed(worst);
        out(" | ");
        out_fixed(sum / count);
        out(" |\n");
    }
    _close(fd);
    (void)B;
    return 0;
}

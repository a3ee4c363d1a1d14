/*
 * The accuracy of the quad functions: reads the file that tools/quad_refs.c
 * writes (arguments and MPFR results to 212 bits) and prints, per function
 * and range, the largest and the mean relative error in units of 2^-106, as
 * a Markdown table. Built against liborv; `ninja -C build quad_accuracy`
 * runs it.
 *
 *   quad_accuracy refs.bin
 */
#include <stdio.h>

#include "../tools/quad_functions.h"

int main(int argc, char **argv) {
    if (argc < 2) { printf("usage: quad_accuracy refs.bin\n"); return 2; }
    FILE *in = fopen(argv[1], "rb");
    if (!in) { printf("cannot open the reference file\n"); return 1; }
    printf("| Function and range | Samples | Max | Mean |\n");
    printf("|---|---|---|---|\n");
    for (;;) {
        unsigned head[4];
        char name[64];
        if (fread(head, sizeof head, 1, in) != 1 || fread(name, sizeof name, 1, in) != 1) break;
        int fn = (int)head[0];
        unsigned count = head[2];
        double worst = 0, sum = 0;
        for (unsigned i = 0; i < count; ++i) {
            double w[14];
            if (fread(w, sizeof w, 1, in) != 1) return 1;
            double e = quad_sample_units(fn, w);
            if (e > worst) worst = e;
            sum += e;
        }
        printf("| %s | %u | %.1f | %.2f |\n", name, count, worst, sum / count);
    }
    fclose(in);
    return 0;
}

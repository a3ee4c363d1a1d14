/* Streams against the host's C library: the character loops, lines, and
   64 MiB through fwrite and fread in 4 KiB blocks. */
#include <stdio.h>
#include <string.h>

#include "bench.h"

#define TOTAL (64u << 20)
#define BLOCK 4096u
#define CHARS (16u << 20)

static char block[BLOCK];

static void characters(void) {
    FILE *f = fopen("bench_stdio.bin", "wb");
    double t = bench_now();
    for (unsigned i = 0; i < CHARS; ++i) putc((char)i, f);
    fclose(f);
    bench_report("putc_16M", bench_now() - t);
    f = fopen("bench_stdio.bin", "rb");
    unsigned sum = 0;
    int c;
    t = bench_now();
    while ((c = getc(f)) != EOF) sum += (unsigned)c;
    bench_report("getc_16M", bench_now() - t);
    fclose(f);
    BENCH_KEEP(sum);
}

static void lines(void) {
    static const char line[] = "a line of text of a usual length, with some words in it\n";
    FILE *f = fopen("bench_lines.txt", "wb");
    double t = bench_now();
    for (unsigned i = 0; i < 500000; ++i) fputs(line, f);
    fclose(f);
    bench_report("fputs_lines", bench_now() - t);
    char buf[128];
    unsigned n = 0;
    f = fopen("bench_lines.txt", "rb");
    t = bench_now();
    while (fgets(buf, sizeof buf, f)) ++n;
    bench_report("fgets_lines", bench_now() - t);
    fclose(f);
    BENCH_KEEP(n);
}

static void blocks(void) {
    memset(block, 'b', sizeof block);
    FILE *f = fopen("bench_blocks.bin", "wb");
    double t = bench_now();
    for (unsigned done = 0; done < TOTAL; done += BLOCK) fwrite(block, 1, BLOCK, f);
    fclose(f);
    bench_report("fwrite_64M", bench_now() - t);
    f = fopen("bench_blocks.bin", "rb");
    unsigned got = 0;
    t = bench_now();
    while (fread(block, 1, BLOCK, f) == BLOCK) got += BLOCK;
    bench_report("fread_64M", bench_now() - t);
    fclose(f);
    BENCH_KEEP(got);
}

int main(void) {
    characters();
    lines();
    blocks();
    remove("bench_stdio.bin");
    remove("bench_lines.txt");
    remove("bench_blocks.bin");
    return 0;
}

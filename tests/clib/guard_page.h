/* A page of memory followed by one that cannot be read, so that a read
   past the end of a block placed at the page's end faults. Raw system
   calls: the test needs no library for it. */
#ifndef GUARD_PAGE_H
#define GUARD_PAGE_H

static long guard_sys(long nr, long a, long b, long c) {
    long r;
    __asm__ volatile("int $0x80" : "=a"(r) : "a"(nr), "b"(a), "c"(b), "d"(c) : "memory");
    return r;
}

/* Answers the start of a readable, writable page whose successor faults. */
static unsigned char *guard_page(void) {
    struct { unsigned long addr, len, prot, flags, fd, off; } args = {
        0, 8192, 3 /* read, write */, 0x22 /* private, anonymous */, (unsigned long)-1, 0};
    long p = guard_sys(90 /* old mmap */, (long)&args, 0, 0);
    if (p < 0 && p > -4096) return 0;
    if (guard_sys(125 /* mprotect */, p + 4096, 4096, 0 /* none */) != 0) return 0;
    return (unsigned char *)p;
}

#endif

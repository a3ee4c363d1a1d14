/* printf and its formats. */
#include <stdio.h>

int main(void) {
    printf("hello, world\n");
    printf("[%d] [%5d] [%-5d] [%05d] [%+d] [% d]\n", 42, 42, 42, -42, 42, 42);
    printf("[%.3d] [%.0d] [%#o] [%#x] [%#X] [%#010x]\n", 5, 0, 8, 255, 255, 255);
    printf("[%hd] [%hu] [%lld] [%llu]\n", 65535, 65535, -9223372036854775807LL - 1, 18446744073709551615ULL);
    printf("[%p] [%p] [%s] [%.3s] [%10.3s] [%-10s]\n", (void *)0x1000, (void *)0x80000000u, "text", "abcdef",
           "abcdef", "left");
    int n;
    printf("[%c%c%c]%n [%5c]\n", 'a', 'b', 'c', &n, '%');
    printf("%%n after five characters stored %d\n", n);
    fprintf(stderr, "and this line went to stderr in one write\n");
    return 0;
}

/* Formatted input: records of name, quantity and price read from standard
   input with scanf and printed back with a total. With nothing on standard
   input (or a terminal, which would wait for typing) it reads a built-in
   sample through sscanf instead. Try: printf 'tea 2 3.5\n' | ./05_scanf */
#include <io.h>
#include <stdio.h>

static const char sample[] = "apples 3 0.45  pears 12 0.30\nfigs 7 1.25 [end] 0x1F";

static double show(const char *name, int quantity, double price) {
    printf("  %-8s %4d x %6.2f = %8.2f\n", name, quantity, price, quantity * price);
    return quantity * price;
}

int main(void) {
    char name[32];
    int quantity, count = 0;
    double price, total = 0;
    if (!_isatty(0)) {
        while (scanf("%31s %d %lf", name, &quantity, &price) == 3) {
            total += show(name, quantity, price);
            ++count;
        }
    }
    if (count == 0) {
        puts("no records on standard input; reading the built-in sample with sscanf:");
        const char *at = sample;
        int used;
        while (sscanf(at, "%31s %d %lf%n", name, &quantity, &price, &used) == 3) {
            total += show(name, quantity, price);
            at += used;
        }
        /* What stopped the records: a bracketed word, then a number in any base. */
        char word[16];
        int value;
        if (sscanf(at, " [%15[^]]] %i", word, &value) == 2) printf("  then [%s] and %%i of 0x1F: %d\n", word, value);
    }
    printf("  total %.2f\n", total);
    return 0;
}

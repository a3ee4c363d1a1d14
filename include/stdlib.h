#ifndef _ORV_STDLIB_H
#define _ORV_STDLIB_H

#include "_orv_defs.h"

_ORV_BEGIN

void *malloc(size_t size);
void free(void *block);
void *calloc(size_t count, size_t size);
void *realloc(void *block, size_t size);

_ORV_END

/* Sorting, searching, integer division, number text. */
typedef struct div_t {
    int quot;
    int rem;
} div_t;

typedef struct ldiv_t {
    long quot;
    long rem;
} ldiv_t;

_ORV_BEGIN

void qsort(void *base, size_t nmemb, size_t size,
           int (*compar)(const void *, const void *));
void *bsearch(const void *key, const void *base, size_t nmemb, size_t size,
              int (*compar)(const void *, const void *));
div_t div(int numer, int denom);
ldiv_t ldiv(long numer, long denom);
int abs(int value);
long labs(long value);

long strtol(const char *text, char **end, int base);
unsigned long strtoul(const char *text, char **end, int base);
int atoi(const char *text);
long atol(const char *text);

_ORV_END

#endif

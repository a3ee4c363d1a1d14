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

double strtod(const char *text, char **end);
double atof(const char *text);
double __d_ten_to(unsigned power);
long strtol(const char *text, char **end, int base);
unsigned long strtoul(const char *text, char **end, int base);
int atoi(const char *text);
long atol(const char *text);

_ORV_END

#endif

/* ---- Random numbers and multibyte characters ------------------------- */

#ifndef _ORV_STDLIB_RANDOM_MB
#define _ORV_STDLIB_RANDOM_MB

#if !defined(__cplusplus) && !defined(_ORV_WCHAR_T)
#define _ORV_WCHAR_T
typedef __WCHAR_TYPE__ wchar_t; /* unsigned 16 bits */
#endif

#define RAND_MAX 0x7FFFFFFE
#define MB_CUR_MAX 1

_ORV_BEGIN

int rand(void);
void srand(unsigned seed);
char *initstate(unsigned seed, char *state, unsigned size);
char *setstate(char *state);

int mblen(const char *s, int n);
int mbtowc(wchar_t *pwc, const char *s, unsigned n);
int wctomb(char *s, wchar_t wc);
size_t mbstowcs(wchar_t *dst, const char *src, unsigned len);
size_t wcstombs(char *dst, const wchar_t *src, unsigned len);

_ORV_END

#endif
/* ---- Process end, environment and shell ------------------------------- */
#ifndef _ORV_STDLIB_PROCESS
#define _ORV_STDLIB_PROCESS
_ORV_BEGIN
int atexit(void (*handler)(void));
void exit(int status) __attribute__((__noreturn__));
void _exit(int status) __attribute__((__noreturn__));
void abort(void);
char *getenv(const char *name);
int system(const char *command);
_ORV_END
#endif

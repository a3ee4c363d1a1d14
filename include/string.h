#ifndef _ORV_STRING_H
#define _ORV_STRING_H

#include "_orv_defs.h"

_ORV_BEGIN

void *memcpy(void *dst, const void *src, size_t len);
void *memmove(void *dst, const void *src, size_t len);
void *memset(void *dst, int val, size_t len);
void *memchr(const void *buf, int ch, size_t n);
int memcmp(const void *a, const void *b, size_t len);

size_t strlen(const char *s);
char *strcpy(char *dst, const char *src);
char *strcat(char *dst, const char *src);
char *strncpy(char *dst, const char *src, size_t n);
char *strncat(char *dst, const char *src, size_t n);
int strcmp(const char *a, const char *b);
int strncmp(const char *a, const char *b, size_t n);
int strcasecmp(const char *a, const char *b);
int strncasecmp(const char *a, const char *b, size_t n);
int strcoll(const char *a, const char *b);
size_t strxfrm(char *dst, const char *src, size_t n);
char *strchr(const char *s, int ch);
char *strrchr(const char *s, int ch);
size_t strspn(const char *s, const char *set);
size_t strcspn(const char *s, const char *set);
char *strpbrk(const char *s, const char *set);
char *strstr(const char *hay, const char *needle);
char *strtok(char *s, const char *delims);
char *strdup(const char *s);

char *strerror(int errnum);
/* The text of errnum; numbers above 7 are written into buffer (12 bytes),
   or into strerror's own buffer when buffer is null. */
char *__orv_strerror(int errnum, char *buffer);

_ORV_END

#endif
